#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct CreatePlaylistsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class CreatePlaylistsCommandParams;
} // namespace Generated

/// Writes a domain `CreatePlaylistsCommandParams` into the wire record `CreatePlaylistsCommandParams`. It can't fail.
///
/// The list is appended to what the destination holds; an empty one leaves the wire's flag as it was. What a nested
/// conversion reports is not looked at.
class CreatePlaylistsCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::CreatePlaylistsCommandParams,
                       Generated::CreatePlaylistsCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::CreatePlaylistsCommandParams const& source,
                        Generated::CreatePlaylistsCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::CreatePlaylistsCommandParams&& source,
                        Generated::CreatePlaylistsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

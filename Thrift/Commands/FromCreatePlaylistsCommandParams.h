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
/// The list is appended to the destination's; an empty list leaves the wire's flag unchanged. The results of nested
/// conversions are ignored.
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

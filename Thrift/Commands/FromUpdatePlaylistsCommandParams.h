#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct UpdatePlaylistsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class UpdatePlaylistsCommandParams;
} // namespace Generated

/// Writes a domain `UpdatePlaylistsCommandParams` into the wire record `UpdatePlaylistsCommandParams`. It can't fail.
///
/// The list is appended to the destination's; an empty list leaves the wire's flag unchanged. The results of nested
/// conversions are ignored.
class UpdatePlaylistsCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::UpdatePlaylistsCommandParams,
                       Generated::UpdatePlaylistsCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::UpdatePlaylistsCommandParams const& source,
                        Generated::UpdatePlaylistsCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::UpdatePlaylistsCommandParams&& source,
                        Generated::UpdatePlaylistsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

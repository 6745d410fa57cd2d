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

/// Reads a domain `UpdatePlaylistsCommandParams` from the wire record `UpdatePlaylistsCommandParams`. It can't fail.
///
/// The identifier is taken whether its flag is set or not. The destination's list is replaced by the one that was sent,
/// or emptied. Flags inside its records are not read, and what a nested conversion reports is not looked at: the record
/// keeps what was applied.
///
/// Ends the process: what ends it in ThriftToPlaylistConverter.
class ThriftToUpdatePlaylistsCommandParamsConverter
    : public Converter<Generated::UpdatePlaylistsCommandParams,
                       HighLevelOperations::Commands::UpdatePlaylistsCommandParams>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::UpdatePlaylistsCommandParams const& source,
                               HighLevelOperations::Commands::UpdatePlaylistsCommandParams& destination) const;

    ConversionResult
    To(Generated::UpdatePlaylistsCommandParams const& source,
       HighLevelOperations::Commands::UpdatePlaylistsCommandParams& destination) const noexcept override;

    ConversionResult
    To(Generated::UpdatePlaylistsCommandParams&& source,
       HighLevelOperations::Commands::UpdatePlaylistsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

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
/// The identifier is read regardless of its flag. The list replaces the destination's; if its flag is clear, the
/// destination's list is emptied. Flags inside its records are ignored, and so are the results of nested conversions: a
/// record keeps what was applied before a failure.
///
/// Ends the process: anything that ends it in ThriftToPlaylistConverter.
class ThriftToUpdatePlaylistsCommandParamsConverter
    : public Converter<Generated::UpdatePlaylistsCommandParams,
                       HighLevelOperations::Commands::UpdatePlaylistsCommandParams>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
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

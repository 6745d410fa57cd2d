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

/// Reads a domain `CreatePlaylistsCommandParams` from the wire record `CreatePlaylistsCommandParams`. It can't fail.
///
/// The identifier is taken whether its flag is set or not. The destination's list is replaced by the one that was sent,
/// or emptied. Flags inside its records are not read, and what a nested conversion reports is not looked at: the record
/// keeps what was applied.
///
/// Ends the process: what ends it in ThriftToPlaylistConverter.
class ThriftToCreatePlaylistsCommandParamsConverter
    : public Converter<Generated::CreatePlaylistsCommandParams,
                       HighLevelOperations::Commands::CreatePlaylistsCommandParams>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::CreatePlaylistsCommandParams const& source,
                               HighLevelOperations::Commands::CreatePlaylistsCommandParams& destination) const;

    ConversionResult
    To(Generated::CreatePlaylistsCommandParams const& source,
       HighLevelOperations::Commands::CreatePlaylistsCommandParams& destination) const noexcept override;

    ConversionResult
    To(Generated::CreatePlaylistsCommandParams&& source,
       HighLevelOperations::Commands::CreatePlaylistsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

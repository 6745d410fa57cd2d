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
/// The identifier is read regardless of its flag. The list replaces the destination's; if its flag is clear, the
/// destination's list is emptied. Flags inside its records are ignored, and so are the results of nested conversions: a
/// record keeps what was applied before a failure.
///
/// Ends the process: anything that ends it in ThriftToPlaylistConverter.
class ThriftToCreatePlaylistsCommandParamsConverter
    : public Converter<Generated::CreatePlaylistsCommandParams,
                       HighLevelOperations::Commands::CreatePlaylistsCommandParams>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
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

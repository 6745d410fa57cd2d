#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct DeletePlaylistsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class DeletePlaylistsCommandParams;
} // namespace Generated

/// Reads a domain `DeletePlaylistsCommandParams` from the wire record `DeletePlaylistsCommandParams`. It can't fail.
///
/// The identifier is read regardless of its flag. The list replaces the destination's; if its flag is clear, the
/// destination's list is emptied.
class ThriftToDeletePlaylistsCommandParamsConverter
    : public Converter<Generated::DeletePlaylistsCommandParams,
                       HighLevelOperations::Commands::DeletePlaylistsCommandParams>
{
public:
    ConversionResult
    To(Generated::DeletePlaylistsCommandParams const& source,
       HighLevelOperations::Commands::DeletePlaylistsCommandParams& destination) const noexcept override;

    ConversionResult
    To(Generated::DeletePlaylistsCommandParams&& source,
       HighLevelOperations::Commands::DeletePlaylistsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

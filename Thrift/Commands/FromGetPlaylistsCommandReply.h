#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetPlaylistsCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetPlaylistsCommandReply;
} // namespace Generated

/// Writes a domain `GetPlaylistsCommandReply` into the wire record `GetPlaylistsCommandReply`.
///
/// Items are appended to those that the destination holds; the list's flag is set only if there is any.
///
/// Failures: any of PlaylistToThriftConverter, with the items before it left in the destination and the list's flag as
/// it was. None of them can fail today.
class GetPlaylistsCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetPlaylistsCommandReply, Generated::GetPlaylistsCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetPlaylistsCommandReply const& source,
                        Generated::GetPlaylistsCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetPlaylistsCommandReply&& source,
                        Generated::GetPlaylistsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

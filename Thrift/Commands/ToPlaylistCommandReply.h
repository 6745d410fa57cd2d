#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct PlaylistCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class PlaylistCommandReply;
} // namespace Generated

/// Replaces a domain `PlaylistCommandReply` with the wire record `PlaylistCommandReply`. An item that fails is kept as
/// `Failed`, `DefaultError`.
///
/// Failure: "PlaylistCommandReply is empty" when one of the two flags is clear; the destination is then unchanged.
///
/// Ends the process: anything that ends it in ThriftToPlaylistConverter.
class ThriftToPlaylistCommandReplyConverter
    : public Converter<Generated::PlaylistCommandReply, HighLevelOperations::Commands::PlaylistCommandReply>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::PlaylistCommandReply const& source,
                               HighLevelOperations::Commands::PlaylistCommandReply& destination) const;

    ConversionResult To(Generated::PlaylistCommandReply const& source,
                        HighLevelOperations::Commands::PlaylistCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::PlaylistCommandReply&& source,
                        HighLevelOperations::Commands::PlaylistCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

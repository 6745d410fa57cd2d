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

/// Writes a domain `PlaylistCommandReply` into the wire record `PlaylistCommandReply`. It can't fail.
///
/// Items are appended to those in the destination; the list's flag is set even without items.
class PlaylistCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::PlaylistCommandReply, Generated::PlaylistCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::PlaylistCommandReply const& source,
                        Generated::PlaylistCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::PlaylistCommandReply&& source,
                        Generated::PlaylistCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

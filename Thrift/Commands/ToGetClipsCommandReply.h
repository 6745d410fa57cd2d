#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
class GetClipsCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetClipsCommandReply;
} // namespace Generated

/// Replaces a domain `GetClipsCommandReply` by the wire record `GetClipsCommandReply`. A revision that was not sent is
/// 0. What the conversion of an item reports is not looked at: the item keeps what was applied.
///
/// Failure: "GetClipsCommandReply is empty" when neither the flag of `guid` nor that of `clips` is set; the destination
/// is then an empty reply with the revision.
///
/// Ends the process: what ends it in ThriftToClipConverter.
class ThriftToGetClipsCommandReplyConverter
    : public Converter<Generated::GetClipsCommandReply, HighLevelOperations::Commands::GetClipsCommandReply>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::GetClipsCommandReply const& source,
                               HighLevelOperations::Commands::GetClipsCommandReply& destination) const;

    ConversionResult To(Generated::GetClipsCommandReply const& source,
                        HighLevelOperations::Commands::GetClipsCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::GetClipsCommandReply&& source,
                        HighLevelOperations::Commands::GetClipsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

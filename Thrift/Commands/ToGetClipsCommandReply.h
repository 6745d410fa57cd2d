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

/// Replaces a domain `GetClipsCommandReply` with the wire record `GetClipsCommandReply`. A revision that was not sent
/// is
/// 0. The results of the items' conversions are ignored: an item keeps what was applied before a failure.
///
/// Failure: "GetClipsCommandReply is empty" when neither the flag of `guid` nor that of `clips` is set; the destination
/// is then an empty reply with the revision.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
class ThriftToGetClipsCommandReplyConverter
    : public Converter<Generated::GetClipsCommandReply, HighLevelOperations::Commands::GetClipsCommandReply>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::GetClipsCommandReply const& source,
                               HighLevelOperations::Commands::GetClipsCommandReply& destination) const;

    ConversionResult To(Generated::GetClipsCommandReply const& source,
                        HighLevelOperations::Commands::GetClipsCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::GetClipsCommandReply&& source,
                        HighLevelOperations::Commands::GetClipsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

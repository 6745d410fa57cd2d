#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetTrainsCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetTrainsCommandReply;
} // namespace Generated

/// Replaces a domain `GetTrainsCommandReply` by the wire record `GetTrainsCommandReply`. The revision is taken whether
/// its flag is set or not. What the conversion of an item reports is not looked at: a train whose clip fails is an
/// empty one.
///
/// Failure: "GetTrainsCommandReply is empty" when neither the flag of `guid` nor that of `trains` is set; the
/// destination is then an empty reply with the revision.
///
/// Ends the process: what ends it in ThriftToTrainConverter.
class ThriftToGetTrainsCommandReplyConverter
    : public Converter<Generated::GetTrainsCommandReply, HighLevelOperations::Commands::GetTrainsCommandReply>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::GetTrainsCommandReply const& source,
                               HighLevelOperations::Commands::GetTrainsCommandReply& destination) const;

    ConversionResult To(Generated::GetTrainsCommandReply const& source,
                        HighLevelOperations::Commands::GetTrainsCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::GetTrainsCommandReply&& source,
                        HighLevelOperations::Commands::GetTrainsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

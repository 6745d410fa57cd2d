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

/// Replaces a domain `GetTrainsCommandReply` with the wire record `GetTrainsCommandReply`. The revision is read
/// regardless of its flag. The results of the items' conversions are ignored: a train whose clip fails is empty.
///
/// Failure: "GetTrainsCommandReply is empty" when neither the flag of `guid` nor that of `trains` is set; the
/// destination is then an empty reply with the revision.
///
/// Ends the process: anything that ends it in ThriftToTrainConverter.
class ThriftToGetTrainsCommandReplyConverter
    : public Converter<Generated::GetTrainsCommandReply, HighLevelOperations::Commands::GetTrainsCommandReply>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::GetTrainsCommandReply const& source,
                               HighLevelOperations::Commands::GetTrainsCommandReply& destination) const;

    ConversionResult To(Generated::GetTrainsCommandReply const& source,
                        HighLevelOperations::Commands::GetTrainsCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::GetTrainsCommandReply&& source,
                        HighLevelOperations::Commands::GetTrainsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetMultiviewerDataCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetMultiviewerDataCommandReply;
} // namespace Generated

/// Replaces a domain `GetMultiviewerDataCommandReply` with the wire record `GetMultiviewerDataCommandReply`. If two
/// keys become one channel, the first keeps its value.
///
/// Failures: the first failure of a nested conversion, returned unchanged; after the failure of an entry, the
/// destination holds only the new status. No nested conversion can fail today.
class ThriftToGetMultiviewerDataCommandReplyConverter
    : public Converter<Generated::GetMultiviewerDataCommandReply,
                       HighLevelOperations::Commands::GetMultiviewerDataCommandReply>
{
public:
    ConversionResult
    To(Generated::GetMultiviewerDataCommandReply const& source,
       HighLevelOperations::Commands::GetMultiviewerDataCommandReply& destination) const noexcept override;

    ConversionResult
    To(Generated::GetMultiviewerDataCommandReply&& source,
       HighLevelOperations::Commands::GetMultiviewerDataCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

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

/// Replaces a domain `GetMultiviewerDataCommandReply` by the wire record `GetMultiviewerDataCommandReply`. Of two keys
/// that become one channel the first keeps its value.
///
/// Failures: the first of a nested conversion ends it, with its text; from an entry, the destination holds the new
/// status and nothing else of the record. None of them can fail today.
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

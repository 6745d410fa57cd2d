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

/// Writes a domain `GetMultiviewerDataCommandReply` into the wire record `GetMultiviewerDataCommandReply`.
///
/// Entries are added to those in the destination, where an existing entry of the same channel keeps its value.
///
/// Failures: the first failure of a nested conversion, returned unchanged. No nested conversion can fail today.
class GetMultiviewerDataCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetMultiviewerDataCommandReply,
                       Generated::GetMultiviewerDataCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetMultiviewerDataCommandReply const& source,
                        Generated::GetMultiviewerDataCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetMultiviewerDataCommandReply&& source,
                        Generated::GetMultiviewerDataCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

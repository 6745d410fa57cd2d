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
/// Entries are added to those that the destination holds, of which one of the same channel keeps its value.
///
/// Failures: the first of a nested conversion ends it, with its text. None of them can fail today.
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

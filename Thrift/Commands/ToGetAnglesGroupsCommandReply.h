#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
class GetAnglesGroupsCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetAnglesGroupsCommandReply;
} // namespace Generated

/// Replaces a domain `GetAnglesGroupsCommandReply` with the wire record `GetAnglesGroupsCommandReply`. A revision that
/// was not sent is 0. The results of the items' conversions are ignored: an item keeps what was applied before a
/// failure.
///
/// Failure: "GetAnglesGroupsCommandReply is empty" when neither the flag of `guid` nor that of `groups` is set; the
/// destination is then an empty reply with the revision.
class ThriftToGetAnglesGroupsCommandReplyConverter
    : public Converter<Generated::GetAnglesGroupsCommandReply,
                       HighLevelOperations::Commands::GetAnglesGroupsCommandReply>
{
public:
    ConversionResult
    To(Generated::GetAnglesGroupsCommandReply const& source,
       HighLevelOperations::Commands::GetAnglesGroupsCommandReply& destination) const noexcept override;

    ConversionResult
    To(Generated::GetAnglesGroupsCommandReply&& source,
       HighLevelOperations::Commands::GetAnglesGroupsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

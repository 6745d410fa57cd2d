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

/// Writes a domain `GetAnglesGroupsCommandReply` into the wire record `GetAnglesGroupsCommandReply`. It can't fail. The
/// results of the items' conversions are ignored.
///
/// Items are appended to those in the destination; the list's flag is set only if the reply has items. The items are
/// those that the reply's cursor has not yet returned; afterwards the cursor is at the end.
class GetAnglesGroupsCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetAnglesGroupsCommandReply,
                       Generated::GetAnglesGroupsCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetAnglesGroupsCommandReply const& source,
                        Generated::GetAnglesGroupsCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetAnglesGroupsCommandReply&& source,
                        Generated::GetAnglesGroupsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

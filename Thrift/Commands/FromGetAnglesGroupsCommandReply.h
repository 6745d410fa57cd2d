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

/// Writes a domain `GetAnglesGroupsCommandReply` into the wire record `GetAnglesGroupsCommandReply`. It can't fail, and
/// what the conversion of an item reports is not looked at.
///
/// Items are appended to those that the destination holds; the list's flag is set only if there is any. The items are
/// those that the reply's cursor has still to give; it stands at the end afterwards.
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

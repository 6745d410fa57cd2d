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

/// Writes a domain `GetClipsCommandReply` into the wire record `GetClipsCommandReply`. It can't fail, and what the
/// conversion of an item reports is not looked at.
///
/// Items are appended to those that the destination holds; the list's flag is set only if there is any. The items are
/// those that the reply's cursor has still to give; it stands at the end afterwards.
class GetClipsCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetClipsCommandReply, Generated::GetClipsCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetClipsCommandReply const& source,
                        Generated::GetClipsCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetClipsCommandReply&& source,
                        Generated::GetClipsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

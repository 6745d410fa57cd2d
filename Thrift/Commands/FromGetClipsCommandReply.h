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

/// Writes a domain `GetClipsCommandReply` into the wire record `GetClipsCommandReply`. It can't fail. The results of
/// the items' conversions are ignored.
///
/// Items are appended to those in the destination; the list's flag is set only if the reply has items. The items are
/// those that the reply's cursor has not yet returned; afterwards the cursor is at the end.
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

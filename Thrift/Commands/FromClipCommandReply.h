#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct ClipCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class ClipCommandReply;
} // namespace Generated

/// Writes a domain `ClipCommandReply` into the wire record `ClipCommandReply`. It can't fail.
///
/// Items are appended to those in the destination; the list's flag is set even without items.
class ClipCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::ClipCommandReply, Generated::ClipCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::ClipCommandReply const& source,
                        Generated::ClipCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::ClipCommandReply&& source,
                        Generated::ClipCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

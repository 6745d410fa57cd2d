#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetTrainsCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetTrainsCommandReply;
} // namespace Generated

/// Writes a domain `GetTrainsCommandReply` into the wire record `GetTrainsCommandReply`. It can't fail. The results of
/// the items' conversions are ignored.
///
/// Items are appended to those in the destination; the list's flag is set only if the reply has items.
class GetTrainsCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetTrainsCommandReply, Generated::GetTrainsCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetTrainsCommandReply const& source,
                        Generated::GetTrainsCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetTrainsCommandReply&& source,
                        Generated::GetTrainsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct UnknownCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class UnknownCommandReply;
} // namespace Generated

/// Writes a domain `UnknownCommandReply` into the wire record `UnknownCommandReply`. It can't fail.
///
/// Lost: the identifier, for which the wire record has no field.
class UnknownCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::UnknownCommandReply, Generated::UnknownCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::UnknownCommandReply const& source,
                        Generated::UnknownCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::UnknownCommandReply&& source,
                        Generated::UnknownCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

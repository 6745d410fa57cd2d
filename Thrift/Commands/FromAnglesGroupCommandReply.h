#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct AnglesGroupCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class AnglesGroupCommandReply;
} // namespace Generated

/// Writes a domain `AnglesGroupCommandReply` into the wire record `AnglesGroupCommandReply`. It can't fail.
///
/// Lost: `groupGuid`; the identifier of the command is written in its place.
class AnglesGroupCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::AnglesGroupCommandReply, Generated::AnglesGroupCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::AnglesGroupCommandReply const& source,
                        Generated::AnglesGroupCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::AnglesGroupCommandReply&& source,
                        Generated::AnglesGroupCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

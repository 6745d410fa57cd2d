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

/// Replaces a domain `AnglesGroupCommandReply` with the wire record `AnglesGroupCommandReply`. A nested reply that
/// fails is kept without items.
///
/// Failure: "AnglesGroupCommandReply is empty" when the flag of `commandGuid` or `groupGuid` is clear; the destination
/// is then unchanged.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
class ThriftToAnglesGroupCommandReplyConverter
    : public Converter<Generated::AnglesGroupCommandReply, HighLevelOperations::Commands::AnglesGroupCommandReply>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::AnglesGroupCommandReply const& source,
                               HighLevelOperations::Commands::AnglesGroupCommandReply& destination) const;

    ConversionResult To(Generated::AnglesGroupCommandReply const& source,
                        HighLevelOperations::Commands::AnglesGroupCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::AnglesGroupCommandReply&& source,
                        HighLevelOperations::Commands::AnglesGroupCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

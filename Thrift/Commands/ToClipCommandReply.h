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

/// Replaces a domain `ClipCommandReply` with the wire record `ClipCommandReply`. An item that fails is kept as
/// `Failed`, `DefaultError`.
///
/// Failure: "ClipCommandReply is empty" when one of the two flags is clear; the destination is then unchanged.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
class ThriftToClipCommandReplyConverter
    : public Converter<Generated::ClipCommandReply, HighLevelOperations::Commands::ClipCommandReply>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::ClipCommandReply const& source,
                               HighLevelOperations::Commands::ClipCommandReply& destination) const;

    ConversionResult To(Generated::ClipCommandReply const& source,
                        HighLevelOperations::Commands::ClipCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::ClipCommandReply&& source,
                        HighLevelOperations::Commands::ClipCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
class ClipResultsItem;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class ClipResultsItem;
} // namespace Generated

/// Applies the wire record `ClipResultsItem` to a domain `ClipResultsItem`.
///
/// A status other than `Succeeded` destroys the clip that the item held. A clip is kept only if the item has by then
/// succeeded, with what ThriftToClipConverter applied before a failure, which is not looked at.
///
/// Failure: "ClipResultsItem is empty" when no flag is set; the destination is then unchanged.
///
/// Ends the process: what ends it in ThriftToClipConverter.
class ThriftToClipResultsItemConverter
    : public Converter<Generated::ClipResultsItem, HighLevelOperations::Commands::ClipResultsItem>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::ClipResultsItem const& source,
                               HighLevelOperations::Commands::ClipResultsItem& destination) const;

    ConversionResult To(Generated::ClipResultsItem const& source,
                        HighLevelOperations::Commands::ClipResultsItem& destination) const noexcept override;

    ConversionResult To(Generated::ClipResultsItem&& source,
                        HighLevelOperations::Commands::ClipResultsItem& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

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
/// A status other than `Succeeded` destroys the clip that the item held. A clip is kept only if the item's status is
/// then `Succeeded`. A failure of ThriftToClipConverter is ignored: the clip keeps what was applied before it.
///
/// Failure: "ClipResultsItem is empty" when no flag is set; the destination is then unchanged.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
class ThriftToClipResultsItemConverter
    : public Converter<Generated::ClipResultsItem, HighLevelOperations::Commands::ClipResultsItem>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::ClipResultsItem const& source,
                               HighLevelOperations::Commands::ClipResultsItem& destination) const;

    ConversionResult To(Generated::ClipResultsItem const& source,
                        HighLevelOperations::Commands::ClipResultsItem& destination) const noexcept override;

    ConversionResult To(Generated::ClipResultsItem&& source,
                        HighLevelOperations::Commands::ClipResultsItem& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

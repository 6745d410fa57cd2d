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

/// Writes a domain `ClipResultsItem` into the wire record `ClipResultsItem`. It can't fail.
///
/// The clip is written only if the item succeeded and the clip differs from Clip::Empty(); otherwise the wire's flag is
/// cleared.
class ClipResultsItemToThriftConverter
    : public Converter<HighLevelOperations::Commands::ClipResultsItem, Generated::ClipResultsItem>
{
public:
    ConversionResult To(HighLevelOperations::Commands::ClipResultsItem const& source,
                        Generated::ClipResultsItem& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::ClipResultsItem&& source,
                        Generated::ClipResultsItem& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct LoadClipsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class LoadClipsCommandParams;
} // namespace Generated

/// Reads a domain `LoadClipsCommandParams` from the wire record `LoadClipsCommandParams`. It can't fail.
///
/// The identifier is read regardless of its flag. Entries are added to those in the destination, where an existing
/// entry of the same channel keeps its value; a clear flag removes all entries. Of an entry's flags only that of
/// `timepoint` counts: a missing time point reads as TimePoint::Empty(). A boundary that ThriftToLoadBoundaryConverter
/// rejects reads as a new boundary.
class ThriftToLoadClipsCommandParamsConverter
    : public Converter<Generated::LoadClipsCommandParams, HighLevelOperations::Commands::LoadClipsCommandParams>
{
public:
    ConversionResult To(Generated::LoadClipsCommandParams const& source,
                        HighLevelOperations::Commands::LoadClipsCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::LoadClipsCommandParams&& source,
                        HighLevelOperations::Commands::LoadClipsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

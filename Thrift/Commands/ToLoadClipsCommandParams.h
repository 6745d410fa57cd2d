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
/// The identifier is taken whether its flag is set or not. Entries are added to those that the destination holds, of
/// which one of the same channel keeps its value; a clear flag empties them. Of an entry's fields only the flag of
/// `timepoint` is read, whose absence is TimePoint::Empty(); a boundary that ThriftToLoadBoundaryConverter refuses
/// reads as a new one.
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

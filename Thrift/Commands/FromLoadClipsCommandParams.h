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

/// Writes a domain `LoadClipsCommandParams` into the wire record `LoadClipsCommandParams`. It can't fail.
///
/// Entries are added to those in the destination and replace an entry of the same channel; without entries the flag is
/// unchanged. Of an entry's fields, only `timepoint` has its flag set.
class LoadClipsCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::LoadClipsCommandParams, Generated::LoadClipsCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::LoadClipsCommandParams const& source,
                        Generated::LoadClipsCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::LoadClipsCommandParams&& source,
                        Generated::LoadClipsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

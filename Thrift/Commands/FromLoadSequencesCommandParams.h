#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct LoadSequencesCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class LoadSequencesCommandParams;
} // namespace Generated

/// Writes a domain `LoadSequencesCommandParams` into the wire record `LoadSequencesCommandParams`. It can't fail.
///
/// Entries are stored among those that the destination holds, where they replace one of the same channel; none leaves
/// the flag as it was. Of an entry's fields all but `sequence` have their flags set.
class LoadSequencesCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::LoadSequencesCommandParams, Generated::LoadSequencesCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::LoadSequencesCommandParams const& source,
                        Generated::LoadSequencesCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::LoadSequencesCommandParams&& source,
                        Generated::LoadSequencesCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

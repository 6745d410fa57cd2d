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
/// Entries are added to those in the destination and replace an entry of the same channel; without entries the flag is
/// unchanged. All fields of an entry except `sequence` have their flags set.
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

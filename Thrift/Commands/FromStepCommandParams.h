#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct StepCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class StepCommandParams;
} // namespace Generated

/// Writes a domain `StepCommandParams` into the wire record `StepCommandParams`. It can't fail.
///
/// Channels are added to those in the destination; without channels the flag is unchanged. `fieldCount` is written, but
/// its flag is unchanged.
class StepCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::StepCommandParams, Generated::StepCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::StepCommandParams const& source,
                        Generated::StepCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::StepCommandParams&& source,
                        Generated::StepCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

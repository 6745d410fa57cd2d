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

/// Reads a domain `StepCommandParams` from the wire record `StepCommandParams`. It can't fail.
///
/// The identifier is read regardless of its flag. Channels are added to those in the destination; a clear flag removes
/// all of them. `fieldCount` is read regardless of its flag.
class ThriftToStepCommandParamsConverter
    : public Converter<Generated::StepCommandParams, HighLevelOperations::Commands::StepCommandParams>
{
public:
    ConversionResult To(Generated::StepCommandParams const& source,
                        HighLevelOperations::Commands::StepCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::StepCommandParams&& source,
                        HighLevelOperations::Commands::StepCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

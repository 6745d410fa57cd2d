#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct SetMultiviewerDataCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class SetMultiviewerDataCommandParams;
} // namespace Generated

/// Replaces a domain `SetMultiviewerDataCommandParams` with the wire record `SetMultiviewerDataCommandParams`. If two
/// keys become one channel, the first keeps its value.
///
/// Failures: the first failure of a nested conversion, returned unchanged; the destination is then unchanged. No nested
/// conversion can fail today.
///
/// Lost: the identifier. The destination gets a new one.
class ThriftToSetMultiviewerDataCommandParamsConverter
    : public Converter<Generated::SetMultiviewerDataCommandParams,
                       HighLevelOperations::Commands::SetMultiviewerDataCommandParams>
{
public:
    ConversionResult
    To(Generated::SetMultiviewerDataCommandParams const& source,
       HighLevelOperations::Commands::SetMultiviewerDataCommandParams& destination) const noexcept override;

    ConversionResult
    To(Generated::SetMultiviewerDataCommandParams&& source,
       HighLevelOperations::Commands::SetMultiviewerDataCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

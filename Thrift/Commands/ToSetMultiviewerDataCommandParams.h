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

/// Replaces a domain `SetMultiviewerDataCommandParams` by the wire record `SetMultiviewerDataCommandParams`. Of two
/// keys that become one channel the first keeps its value.
///
/// Failures: the first of a nested conversion ends it, with its text; the destination is then unchanged. None of them
/// can fail today.
///
/// Lost on the way: the identifier. The destination gets a new one.
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

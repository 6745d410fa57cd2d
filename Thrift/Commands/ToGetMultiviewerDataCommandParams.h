#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetMultiviewerDataCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetMultiviewerDataCommandParams;
} // namespace Generated

/// Reads a domain `GetMultiviewerDataCommandParams` from the wire record `GetMultiviewerDataCommandParams`. It returns
/// the result of the identifier's conversion, which can't fail.
class ThriftToGetMultiviewerDataCommandParamsConverter
    : public Converter<Generated::GetMultiviewerDataCommandParams,
                       HighLevelOperations::Commands::GetMultiviewerDataCommandParams>
{
public:
    ConversionResult
    To(Generated::GetMultiviewerDataCommandParams const& source,
       HighLevelOperations::Commands::GetMultiviewerDataCommandParams& destination) const noexcept override;

    ConversionResult
    To(Generated::GetMultiviewerDataCommandParams&& source,
       HighLevelOperations::Commands::GetMultiviewerDataCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

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

/// Writes a domain `GetMultiviewerDataCommandParams` into the wire record `GetMultiviewerDataCommandParams`. It returns
/// the result of the identifier's conversion, which can't fail.
class GetMultiviewerDataCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetMultiviewerDataCommandParams,
                       Generated::GetMultiviewerDataCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetMultiviewerDataCommandParams const& source,
                        Generated::GetMultiviewerDataCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetMultiviewerDataCommandParams&& source,
                        Generated::GetMultiviewerDataCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetTrainsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetTrainsCommandParams;
} // namespace Generated

/// Writes a domain `GetTrainsCommandParams` into the wire record `GetTrainsCommandParams`. It can't fail. Only the
/// identifier is written.
class GetTrainsCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetTrainsCommandParams, Generated::GetTrainsCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetTrainsCommandParams const& source,
                        Generated::GetTrainsCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetTrainsCommandParams&& source,
                        Generated::GetTrainsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

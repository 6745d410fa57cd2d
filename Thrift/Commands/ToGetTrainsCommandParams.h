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

/// Reads a domain `GetTrainsCommandParams` from the wire record `GetTrainsCommandParams`. It can't fail. The identifier
/// is read regardless of its flag.
class ThriftToGetTrainsCommandParamsConverter
    : public Converter<Generated::GetTrainsCommandParams, HighLevelOperations::Commands::GetTrainsCommandParams>
{
public:
    ConversionResult To(Generated::GetTrainsCommandParams const& source,
                        HighLevelOperations::Commands::GetTrainsCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::GetTrainsCommandParams&& source,
                        HighLevelOperations::Commands::GetTrainsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

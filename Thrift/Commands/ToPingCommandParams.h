#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct PingCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class PingCommandParams;
} // namespace Generated

/// Reads a domain `PingCommandParams` from the wire record `PingCommandParams`. It can't fail. The identifier is read
/// regardless of its flag.
class ThriftToPingCommandParamsConverter
    : public Converter<Generated::PingCommandParams, HighLevelOperations::Commands::PingCommandParams>
{
public:
    ConversionResult To(Generated::PingCommandParams const& source,
                        HighLevelOperations::Commands::PingCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::PingCommandParams&& source,
                        HighLevelOperations::Commands::PingCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

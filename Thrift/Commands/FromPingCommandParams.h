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

/// Writes a domain `PingCommandParams` into the wire record `PingCommandParams`. It can't fail. Only the identifier is
/// written.
class PingCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::PingCommandParams, Generated::PingCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::PingCommandParams const& source,
                        Generated::PingCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::PingCommandParams&& source,
                        Generated::PingCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

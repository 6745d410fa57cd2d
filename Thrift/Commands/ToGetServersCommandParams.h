#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetServersCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetServersCommandParams;
} // namespace Generated

/// Reads a domain `GetServersCommandParams` from the wire record `GetServersCommandParams`. It can't fail. The
/// identifier is read regardless of its flag, the range only if its flag is set; an unknown range reads as local and
/// remote.
class ThriftToGetServersCommandParamsConverter
    : public Converter<Generated::GetServersCommandParams, HighLevelOperations::Commands::GetServersCommandParams>
{
public:
    ConversionResult To(Generated::GetServersCommandParams const& source,
                        HighLevelOperations::Commands::GetServersCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::GetServersCommandParams&& source,
                        HighLevelOperations::Commands::GetServersCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetChannelsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetChannelsCommandParams;
} // namespace Generated

/// Reads a domain `GetChannelsCommandParams` from the wire record `GetChannelsCommandParams`. It can't fail. The
/// identifier is read regardless of its flag.
class ThriftToGetChannelsCommandParamsConverter
    : public Converter<Generated::GetChannelsCommandParams, HighLevelOperations::Commands::GetChannelsCommandParams>
{
public:
    ConversionResult To(Generated::GetChannelsCommandParams const& source,
                        HighLevelOperations::Commands::GetChannelsCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::GetChannelsCommandParams&& source,
                        HighLevelOperations::Commands::GetChannelsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

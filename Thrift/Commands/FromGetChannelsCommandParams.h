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

/// Writes a domain `GetChannelsCommandParams` into the wire record `GetChannelsCommandParams`. It can't fail. Only the
/// identifier is written.
class GetChannelsCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetChannelsCommandParams, Generated::GetChannelsCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetChannelsCommandParams const& source,
                        Generated::GetChannelsCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetChannelsCommandParams&& source,
                        Generated::GetChannelsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

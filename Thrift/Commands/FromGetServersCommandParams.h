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

/// Writes a domain `GetServersCommandParams` into the wire record `GetServersCommandParams`. It can't fail. A range
/// outside its enumeration is written as local and remote.
class GetServersCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetServersCommandParams, Generated::GetServersCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetServersCommandParams const& source,
                        Generated::GetServersCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetServersCommandParams&& source,
                        Generated::GetServersCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

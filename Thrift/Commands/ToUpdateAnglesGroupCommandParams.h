#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct UpdateAnglesGroupCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class UpdateAnglesGroupCommandParams;
} // namespace Generated

/// Reads a domain `UpdateAnglesGroupCommandParams` from the wire record `UpdateAnglesGroupCommandParams`. It can't
/// fail. An angle that was not sent is unchanged.
class ThriftToUpdateAnglesGroupCommandParamsConverter
    : public Converter<Generated::UpdateAnglesGroupCommandParams,
                       HighLevelOperations::Commands::UpdateAnglesGroupCommandParams>
{
public:
    ConversionResult
    To(Generated::UpdateAnglesGroupCommandParams const& source,
       HighLevelOperations::Commands::UpdateAnglesGroupCommandParams& destination) const noexcept override;

    ConversionResult
    To(Generated::UpdateAnglesGroupCommandParams&& source,
       HighLevelOperations::Commands::UpdateAnglesGroupCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

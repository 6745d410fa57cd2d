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

/// Writes a domain `UpdateAnglesGroupCommandParams` into the wire record `UpdateAnglesGroupCommandParams`. It can't
/// fail. A missing angle leaves the wire's flag unchanged.
class UpdateAnglesGroupCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::UpdateAnglesGroupCommandParams,
                       Generated::UpdateAnglesGroupCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::UpdateAnglesGroupCommandParams const& source,
                        Generated::UpdateAnglesGroupCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::UpdateAnglesGroupCommandParams&& source,
                        Generated::UpdateAnglesGroupCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

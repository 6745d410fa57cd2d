#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct SetLoadBoundariesCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class SetLoadBoundariesCommandParams;
} // namespace Generated

/// Writes a domain `SetLoadBoundariesCommandParams` into the wire record `SetLoadBoundariesCommandParams`. It can't
/// fail.
///
/// Entries are added to those in the destination and replace an entry of the same channel; without entries the flag is
/// unchanged.
class SetLoadBoundariesCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::SetLoadBoundariesCommandParams,
                       Generated::SetLoadBoundariesCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::SetLoadBoundariesCommandParams const& source,
                        Generated::SetLoadBoundariesCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::SetLoadBoundariesCommandParams&& source,
                        Generated::SetLoadBoundariesCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

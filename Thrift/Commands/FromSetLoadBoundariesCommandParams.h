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
/// Entries are stored among those that the destination holds, where they replace one of the same channel; none leaves
/// the flag as it was.
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

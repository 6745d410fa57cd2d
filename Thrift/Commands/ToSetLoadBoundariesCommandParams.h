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

/// Reads a domain `SetLoadBoundariesCommandParams` from the wire record `SetLoadBoundariesCommandParams`. It can't
/// fail.
///
/// The identifier is taken whether its flag is set or not. Entries are added to those that the destination holds, of
/// which one of the same channel keeps its value; a clear flag empties them. Flags inside an entry are not read; a
/// boundary that ThriftToLoadBoundaryConverter refuses reads as a new one.
class ThriftToSetLoadBoundariesCommandParamsConverter
    : public Converter<Generated::SetLoadBoundariesCommandParams,
                       HighLevelOperations::Commands::SetLoadBoundariesCommandParams>
{
public:
    ConversionResult
    To(Generated::SetLoadBoundariesCommandParams const& source,
       HighLevelOperations::Commands::SetLoadBoundariesCommandParams& destination) const noexcept override;

    ConversionResult
    To(Generated::SetLoadBoundariesCommandParams&& source,
       HighLevelOperations::Commands::SetLoadBoundariesCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

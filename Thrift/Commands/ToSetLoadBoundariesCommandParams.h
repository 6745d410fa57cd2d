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
/// The identifier is read regardless of its flag. Entries are added to those in the destination, where an existing
/// entry of the same channel keeps its value; a clear flag removes all entries. Flags inside an entry are ignored; a
/// boundary that ThriftToLoadBoundaryConverter rejects reads as a new boundary.
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

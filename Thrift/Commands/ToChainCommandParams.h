#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct ChainCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class ChainCommandParams;
} // namespace Generated

/// Reads a domain `ChainCommandParams` from the wire record `ChainCommandParams`. It can't fail.
///
/// The identifier is read regardless of its flag. Entries are added to those in the destination, where an existing
/// entry of the same channel keeps its value; a clear flag removes all entries. The other fields are read only if their
/// flags are set; a boundary that ThriftToLoadBoundaryConverter rejects leaves the destination's unchanged.
class ThriftToChainCommandParamsConverter
    : public Converter<Generated::ChainCommandParams, HighLevelOperations::Commands::ChainCommandParams>
{
public:
    ConversionResult To(Generated::ChainCommandParams const& source,
                        HighLevelOperations::Commands::ChainCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::ChainCommandParams&& source,
                        HighLevelOperations::Commands::ChainCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

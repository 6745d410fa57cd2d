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
/// The identifier is taken whether its flag is set or not. Entries are added to those that the destination holds, of
/// which one of the same channel keeps its value; a clear flag empties them. The other fields are taken only if their
/// flags are set; a boundary that ThriftToLoadBoundaryConverter refuses leaves the destination's as it was.
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

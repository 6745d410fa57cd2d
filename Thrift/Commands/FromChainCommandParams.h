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

/// Writes a domain `ChainCommandParams` into the wire record `ChainCommandParams`. It can't fail.
///
/// Entries are added to those in the destination and replace an entry of the same channel; without entries the flag is
/// unchanged.
class ChainCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::ChainCommandParams, Generated::ChainCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::ChainCommandParams const& source,
                        Generated::ChainCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::ChainCommandParams&& source,
                        Generated::ChainCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

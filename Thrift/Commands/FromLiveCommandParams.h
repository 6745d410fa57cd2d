#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct LiveCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class LiveCommandParams;
} // namespace Generated

/// Writes a domain `LiveCommandParams` into the wire record `LiveCommandParams`. It can't fail.
///
/// Entries are added to those in the destination and replace an entry of the same channel; without entries the flag is
/// unchanged.
class LiveCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::LiveCommandParams, Generated::LiveCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::LiveCommandParams const& source,
                        Generated::LiveCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::LiveCommandParams&& source,
                        Generated::LiveCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct DialCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class DialCommandParams;
} // namespace Generated

/// Writes a domain `DialCommandParams` into the wire record `DialCommandParams`. It can't fail.
///
/// Channels are added to those in the destination; without channels the flag is unchanged. `velocity` is written, but
/// its flag is unchanged.
class DialCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::DialCommandParams, Generated::DialCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::DialCommandParams const& source,
                        Generated::DialCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::DialCommandParams&& source,
                        Generated::DialCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct PlayCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class PlayCommandParams;
} // namespace Generated

/// Writes a domain `PlayCommandParams` into the wire record `PlayCommandParams`. It can't fail.
///
/// Channels are added to those in the destination; without channels the flag is unchanged. A speed whose numerator or
/// denominator is 0 is not written.
class PlayCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::PlayCommandParams, Generated::PlayCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::PlayCommandParams const& source,
                        Generated::PlayCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::PlayCommandParams&& source,
                        Generated::PlayCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

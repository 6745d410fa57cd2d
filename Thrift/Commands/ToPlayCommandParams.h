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

/// Reads a domain `PlayCommandParams` from the wire record `PlayCommandParams`. It can't fail.
///
/// The identifier is read regardless of its flag. Channels are added to those in the destination; a clear flag removes
/// all of them.
///
/// A speed with a clear flag or a denominator of 0 reads as 0 / 1; a numerator of 0 is kept.
class ThriftToPlayCommandParamsConverter
    : public Converter<Generated::PlayCommandParams, HighLevelOperations::Commands::PlayCommandParams>
{
public:
    ConversionResult To(Generated::PlayCommandParams const& source,
                        HighLevelOperations::Commands::PlayCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::PlayCommandParams&& source,
                        HighLevelOperations::Commands::PlayCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

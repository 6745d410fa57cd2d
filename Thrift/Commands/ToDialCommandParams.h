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

/// Reads a domain `DialCommandParams` from the wire record `DialCommandParams`. It can't fail.
///
/// The identifier is read regardless of its flag. Channels are added to those in the destination; a clear flag removes
/// all of them. `velocity` is read regardless of its flag.
class ThriftToDialCommandParamsConverter
    : public Converter<Generated::DialCommandParams, HighLevelOperations::Commands::DialCommandParams>
{
public:
    ConversionResult To(Generated::DialCommandParams const& source,
                        HighLevelOperations::Commands::DialCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::DialCommandParams&& source,
                        HighLevelOperations::Commands::DialCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

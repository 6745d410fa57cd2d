#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GoIdleCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GoIdleCommandParams;
} // namespace Generated

/// Reads a domain `GoIdleCommandParams` from the wire record `GoIdleCommandParams`. It can't fail.
///
/// The identifier is read regardless of its flag. Channels are added to those in the destination; a clear flag removes
/// all of them. `setBlackScreen` is read regardless of its flag.
class ThriftToGoIdleCommandParamsConverter
    : public Converter<Generated::GoIdleCommandParams, HighLevelOperations::Commands::GoIdleCommandParams>
{
public:
    ConversionResult To(Generated::GoIdleCommandParams const& source,
                        HighLevelOperations::Commands::GoIdleCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::GoIdleCommandParams&& source,
                        HighLevelOperations::Commands::GoIdleCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

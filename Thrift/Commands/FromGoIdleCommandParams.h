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

/// Writes a domain `GoIdleCommandParams` into the wire record `GoIdleCommandParams`. It can't fail.
///
/// Channels are added to those in the destination; without channels the flag is unchanged. `setBlackScreen` is written,
/// but its flag is unchanged.
class GoIdleCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::GoIdleCommandParams, Generated::GoIdleCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GoIdleCommandParams const& source,
                        Generated::GoIdleCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GoIdleCommandParams&& source,
                        Generated::GoIdleCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

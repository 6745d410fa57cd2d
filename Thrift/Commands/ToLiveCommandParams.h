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

/// Reads a domain `LiveCommandParams` from the wire record `LiveCommandParams`. It can't fail.
///
/// Entries are added to those in the destination, where an existing entry of the same channel keeps its value.
///
/// Lost: if the flag of `players` is clear, the destination is replaced with a new `LiveCommandParams` with a new
/// identifier; the identifier that was sent is lost.
class ThriftToLiveCommandParamsConverter
    : public Converter<Generated::LiveCommandParams, HighLevelOperations::Commands::LiveCommandParams>
{
public:
    ConversionResult To(Generated::LiveCommandParams const& source,
                        HighLevelOperations::Commands::LiveCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::LiveCommandParams&& source,
                        HighLevelOperations::Commands::LiveCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

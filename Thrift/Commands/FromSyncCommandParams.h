#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct SyncCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class SyncCommandParams;
} // namespace Generated

/// Writes a domain `SyncCommandParams` into the wire record `SyncCommandParams`. It can't fail.
///
/// Channels are added to those in the destination; without channels the flag is unchanged.
class SyncCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::SyncCommandParams, Generated::SyncCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::SyncCommandParams const& source,
                        Generated::SyncCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::SyncCommandParams&& source,
                        Generated::SyncCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

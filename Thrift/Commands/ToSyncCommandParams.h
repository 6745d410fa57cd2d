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

/// Reads a domain `SyncCommandParams` from the wire record `SyncCommandParams`. It can't fail.
///
/// The identifier is read regardless of its flag. Channels are added to those in the destination; a clear flag removes
/// all of them. The other fields are read only if their flags are set; a boundary that ThriftToLoadBoundaryConverter
/// rejects leaves the destination's unchanged.
class ThriftToSyncCommandParamsConverter
    : public Converter<Generated::SyncCommandParams, HighLevelOperations::Commands::SyncCommandParams>
{
public:
    ConversionResult To(Generated::SyncCommandParams const& source,
                        HighLevelOperations::Commands::SyncCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::SyncCommandParams&& source,
                        HighLevelOperations::Commands::SyncCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

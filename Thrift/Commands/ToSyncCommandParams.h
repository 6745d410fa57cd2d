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
/// The identifier is taken whether its flag is set or not. Channels are added to those that the destination holds; a
/// clear flag empties them. The other fields are taken only if their flags are set; a boundary that
/// ThriftToLoadBoundaryConverter refuses leaves the destination's as it was.
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

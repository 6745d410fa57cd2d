#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetPlaylistsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetPlaylistsCommandParams;
} // namespace Generated

/// Reads a domain `GetPlaylistsCommandParams` from the wire record `GetPlaylistsCommandParams`. It can't fail. The
/// identifier is read regardless of its flag, mode and filter only if their flags are set; an unknown mode reads as
/// `Normal`.
class ThriftToGetPlaylistsCommandParamsConverter
    : public Converter<Generated::GetPlaylistsCommandParams, HighLevelOperations::Commands::GetPlaylistsCommandParams>
{
public:
    ConversionResult To(Generated::GetPlaylistsCommandParams const& source,
                        HighLevelOperations::Commands::GetPlaylistsCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::GetPlaylistsCommandParams&& source,
                        HighLevelOperations::Commands::GetPlaylistsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

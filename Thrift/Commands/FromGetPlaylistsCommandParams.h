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

/// Writes a domain `GetPlaylistsCommandParams` into the wire record `GetPlaylistsCommandParams`. It can't fail. A mode
/// outside its enumeration is written as `Normal`; an empty filter clears the wire's flag.
class GetPlaylistsCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetPlaylistsCommandParams, Generated::GetPlaylistsCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetPlaylistsCommandParams const& source,
                        Generated::GetPlaylistsCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetPlaylistsCommandParams&& source,
                        Generated::GetPlaylistsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

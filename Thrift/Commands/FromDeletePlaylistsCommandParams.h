#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct DeletePlaylistsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class DeletePlaylistsCommandParams;
} // namespace Generated

/// Writes a domain `DeletePlaylistsCommandParams` into the wire record `DeletePlaylistsCommandParams`. It can't fail.
///
/// The identifiers are appended to those in the destination; without identifiers the wire's flag is unchanged.
class DeletePlaylistsCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::DeletePlaylistsCommandParams,
                       Generated::DeletePlaylistsCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::DeletePlaylistsCommandParams const& source,
                        Generated::DeletePlaylistsCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::DeletePlaylistsCommandParams&& source,
                        Generated::DeletePlaylistsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

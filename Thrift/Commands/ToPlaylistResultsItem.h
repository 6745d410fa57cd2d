#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
class PlaylistResultsItem;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class PlaylistResultsItem;
} // namespace Generated

/// Applies the wire record `PlaylistResultsItem` to a domain `PlaylistResultsItem`.
///
/// A status other than `Succeeded` destroys the playlist that the item held, but a playlist in the same record is kept
/// regardless of the status. The result of ThriftToPlaylistConverter is ignored.
///
/// Failure: "PlaylistResultsItem is empty" when no flag is set; the destination is then unchanged.
///
/// Ends the process: anything that ends it in ThriftToPlaylistConverter.
class ThriftToPlaylistResultsItemConverter
    : public Converter<Generated::PlaylistResultsItem, HighLevelOperations::Commands::PlaylistResultsItem>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::PlaylistResultsItem const& source,
                               HighLevelOperations::Commands::PlaylistResultsItem& destination) const;

    ConversionResult To(Generated::PlaylistResultsItem const& source,
                        HighLevelOperations::Commands::PlaylistResultsItem& destination) const noexcept override;

    ConversionResult To(Generated::PlaylistResultsItem&& source,
                        HighLevelOperations::Commands::PlaylistResultsItem& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

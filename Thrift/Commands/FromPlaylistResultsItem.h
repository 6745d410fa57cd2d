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

/// Writes a domain `PlaylistResultsItem` into the wire record `PlaylistResultsItem`. It can't fail.
///
/// A held playlist is written regardless of the status and its contents; without one the wire's flag is cleared.
class PlaylistResultsItemToThriftConverter
    : public Converter<HighLevelOperations::Commands::PlaylistResultsItem, Generated::PlaylistResultsItem>
{
public:
    ConversionResult To(HighLevelOperations::Commands::PlaylistResultsItem const& source,
                        Generated::PlaylistResultsItem& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::PlaylistResultsItem&& source,
                        Generated::PlaylistResultsItem& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct SetMultiviewerDataCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class SetMultiviewerDataCommandParams;
} // namespace Generated

/// Writes a domain `SetMultiviewerDataCommandParams` into the wire record `SetMultiviewerDataCommandParams`.
///
/// Entries are added to those in the destination and replace an entry of the same channel.
///
/// Failures: the first failure of a nested conversion, returned unchanged. No nested conversion can fail today.
///
/// Lost: the identifier. The destination's identifier is unchanged.
class SetMultiviewerDataCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::SetMultiviewerDataCommandParams,
                       Generated::SetMultiviewerDataCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::SetMultiviewerDataCommandParams const& source,
                        Generated::SetMultiviewerDataCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::SetMultiviewerDataCommandParams&& source,
                        Generated::SetMultiviewerDataCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

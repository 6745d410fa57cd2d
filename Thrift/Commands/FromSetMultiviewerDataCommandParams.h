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
/// Entries are stored among those that the destination holds, where they replace one of the same channel.
///
/// Failures: the first of a nested conversion ends it, with its text. None of them can fail today.
///
/// Lost on the way: the identifier. The wire's stays as the destination held it.
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

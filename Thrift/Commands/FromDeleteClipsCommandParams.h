#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct DeleteClipsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class DeleteClipsCommandParams;
} // namespace Generated

/// Writes a domain `DeleteClipsCommandParams` into the wire record `DeleteClipsCommandParams`. It can't fail.
///
/// The identifiers are appended to those in the destination; without identifiers the wire's flag is unchanged.
class DeleteClipsCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::DeleteClipsCommandParams, Generated::DeleteClipsCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::DeleteClipsCommandParams const& source,
                        Generated::DeleteClipsCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::DeleteClipsCommandParams&& source,
                        Generated::DeleteClipsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

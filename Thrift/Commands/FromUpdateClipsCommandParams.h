#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct UpdateClipsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class UpdateClipsCommandParams;
} // namespace Generated

/// Writes a domain `UpdateClipsCommandParams` into the wire record `UpdateClipsCommandParams`. It can't fail.
///
/// The list is appended to the destination's; an empty list leaves the wire's flag unchanged. The results of nested
/// conversions are ignored.
class UpdateClipsCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::UpdateClipsCommandParams, Generated::UpdateClipsCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::UpdateClipsCommandParams const& source,
                        Generated::UpdateClipsCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::UpdateClipsCommandParams&& source,
                        Generated::UpdateClipsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

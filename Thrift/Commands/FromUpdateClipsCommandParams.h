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
/// The list is appended to what the destination holds; an empty one leaves the wire's flag as it was. What a nested
/// conversion reports is not looked at.
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

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct CreateClipsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class CreateClipsCommandParams;
} // namespace Generated

/// Writes a domain `CreateClipsCommandParams` into the wire record `CreateClipsCommandParams`. It can't fail.
///
/// The list is appended to the destination's; an empty list leaves the wire's flag unchanged. The results of nested
/// conversions are ignored.
class CreateClipsCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::CreateClipsCommandParams, Generated::CreateClipsCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::CreateClipsCommandParams const& source,
                        Generated::CreateClipsCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::CreateClipsCommandParams&& source,
                        Generated::CreateClipsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetClipsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetClipsCommandParams;
} // namespace Generated

/// Writes a domain `GetClipsCommandParams` into the wire record `GetClipsCommandParams`. It can't fail. Only the
/// identifier is written.
class GetClipsCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetClipsCommandParams, Generated::GetClipsCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetClipsCommandParams const& source,
                        Generated::GetClipsCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetClipsCommandParams&& source,
                        Generated::GetClipsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

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

/// Reads a domain `GetClipsCommandParams` from the wire record `GetClipsCommandParams`. It can't fail. The identifier
/// is read regardless of its flag.
class ThriftToGetClipsCommandParamsConverter
    : public Converter<Generated::GetClipsCommandParams, HighLevelOperations::Commands::GetClipsCommandParams>
{
public:
    ConversionResult To(Generated::GetClipsCommandParams const& source,
                        HighLevelOperations::Commands::GetClipsCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::GetClipsCommandParams&& source,
                        HighLevelOperations::Commands::GetClipsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

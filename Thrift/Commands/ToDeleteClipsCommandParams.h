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

/// Reads a domain `DeleteClipsCommandParams` from the wire record `DeleteClipsCommandParams`. It can't fail.
///
/// The identifier is taken whether its flag is set or not. The destination's list is replaced by the one that was sent,
/// or emptied.
class ThriftToDeleteClipsCommandParamsConverter
    : public Converter<Generated::DeleteClipsCommandParams, HighLevelOperations::Commands::DeleteClipsCommandParams>
{
public:
    ConversionResult To(Generated::DeleteClipsCommandParams const& source,
                        HighLevelOperations::Commands::DeleteClipsCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::DeleteClipsCommandParams&& source,
                        HighLevelOperations::Commands::DeleteClipsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

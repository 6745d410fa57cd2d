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
/// The identifier is read regardless of its flag. The list replaces the destination's; if its flag is clear, the
/// destination's list is emptied.
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

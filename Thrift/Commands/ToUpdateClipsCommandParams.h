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

/// Reads a domain `UpdateClipsCommandParams` from the wire record `UpdateClipsCommandParams`. It can't fail.
///
/// The identifier is taken whether its flag is set or not. The destination's list is replaced by the one that was sent,
/// or emptied. Flags inside its records are not read, and what a nested conversion reports is not looked at: the record
/// keeps what was applied.
///
/// Ends the process: what ends it in ThriftToClipConverter.
class ThriftToUpdateClipsCommandParamsConverter
    : public Converter<Generated::UpdateClipsCommandParams, HighLevelOperations::Commands::UpdateClipsCommandParams>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::UpdateClipsCommandParams const& source,
                               HighLevelOperations::Commands::UpdateClipsCommandParams& destination) const;

    ConversionResult To(Generated::UpdateClipsCommandParams const& source,
                        HighLevelOperations::Commands::UpdateClipsCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::UpdateClipsCommandParams&& source,
                        HighLevelOperations::Commands::UpdateClipsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

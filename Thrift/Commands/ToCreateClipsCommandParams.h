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

/// Reads a domain `CreateClipsCommandParams` from the wire record `CreateClipsCommandParams`. It can't fail.
///
/// The identifier is taken whether its flag is set or not. The destination's list is replaced by the one that was sent,
/// or emptied. Flags inside its records are not read, and what a nested conversion reports is not looked at: the record
/// keeps what was applied.
///
/// Ends the process: what ends it in ThriftToClipConverter.
class ThriftToCreateClipsCommandParamsConverter
    : public Converter<Generated::CreateClipsCommandParams, HighLevelOperations::Commands::CreateClipsCommandParams>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::CreateClipsCommandParams const& source,
                               HighLevelOperations::Commands::CreateClipsCommandParams& destination) const;

    ConversionResult To(Generated::CreateClipsCommandParams const& source,
                        HighLevelOperations::Commands::CreateClipsCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::CreateClipsCommandParams&& source,
                        HighLevelOperations::Commands::CreateClipsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

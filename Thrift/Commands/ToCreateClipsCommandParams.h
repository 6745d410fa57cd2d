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
/// The identifier is read regardless of its flag. The list replaces the destination's; if its flag is clear, the
/// destination's list is emptied. Flags inside its records are ignored, and so are the results of nested conversions: a
/// record keeps what was applied before a failure.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
class ThriftToCreateClipsCommandParamsConverter
    : public Converter<Generated::CreateClipsCommandParams, HighLevelOperations::Commands::CreateClipsCommandParams>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::CreateClipsCommandParams const& source,
                               HighLevelOperations::Commands::CreateClipsCommandParams& destination) const;

    ConversionResult To(Generated::CreateClipsCommandParams const& source,
                        HighLevelOperations::Commands::CreateClipsCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::CreateClipsCommandParams&& source,
                        HighLevelOperations::Commands::CreateClipsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

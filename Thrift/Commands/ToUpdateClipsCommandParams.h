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
/// The identifier is read regardless of its flag. The list replaces the destination's; if its flag is clear, the
/// destination's list is emptied. Flags inside its records are ignored, and so are the results of nested conversions: a
/// record keeps what was applied before a failure.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
class ThriftToUpdateClipsCommandParamsConverter
    : public Converter<Generated::UpdateClipsCommandParams, HighLevelOperations::Commands::UpdateClipsCommandParams>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::UpdateClipsCommandParams const& source,
                               HighLevelOperations::Commands::UpdateClipsCommandParams& destination) const;

    ConversionResult To(Generated::UpdateClipsCommandParams const& source,
                        HighLevelOperations::Commands::UpdateClipsCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::UpdateClipsCommandParams&& source,
                        HighLevelOperations::Commands::UpdateClipsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

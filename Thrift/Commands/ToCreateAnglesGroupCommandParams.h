#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct CreateAnglesGroupCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class CreateAnglesGroupCommandParams;
} // namespace Generated

/// Reads a domain `CreateAnglesGroupCommandParams` from the wire record `CreateAnglesGroupCommandParams`. It can't
/// fail. The flags of this record are ignored: fields that were not sent are read as the wire record holds them. The
/// nested command for the clips is read with ThriftToCreateClipsCommandParamsConverter.
///
/// Ends the process: anything that ends it in ThriftToClipConverter.
class ThriftToCreateAnglesGroupCommandParamsConverter
    : public Converter<Generated::CreateAnglesGroupCommandParams,
                       HighLevelOperations::Commands::CreateAnglesGroupCommandParams>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::CreateAnglesGroupCommandParams const& source,
                               HighLevelOperations::Commands::CreateAnglesGroupCommandParams& destination) const;

    ConversionResult
    To(Generated::CreateAnglesGroupCommandParams const& source,
       HighLevelOperations::Commands::CreateAnglesGroupCommandParams& destination) const noexcept override;

    ConversionResult
    To(Generated::CreateAnglesGroupCommandParams&& source,
       HighLevelOperations::Commands::CreateAnglesGroupCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

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
/// fail. No flag of this record is read: what was not sent is taken as the wire record
/// holds it. The clips' own command is read as ThriftToCreateClipsCommandParamsConverter says.
///
/// Ends the process: what ends it in ThriftToClipConverter.
class ThriftToCreateAnglesGroupCommandParamsConverter
    : public Converter<Generated::CreateAnglesGroupCommandParams,
                       HighLevelOperations::Commands::CreateAnglesGroupCommandParams>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
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

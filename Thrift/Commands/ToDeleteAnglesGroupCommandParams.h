#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct DeleteAnglesGroupCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class DeleteAnglesGroupCommandParams;
} // namespace Generated

/// Reads a domain `DeleteAnglesGroupCommandParams` from the wire record `DeleteAnglesGroupCommandParams`. Both fields
/// are required. It can't fail.
class ThriftToDeleteAnglesGroupCommandParamsConverter
    : public Converter<Generated::DeleteAnglesGroupCommandParams,
                       HighLevelOperations::Commands::DeleteAnglesGroupCommandParams>
{
public:
    ConversionResult
    To(Generated::DeleteAnglesGroupCommandParams const& source,
       HighLevelOperations::Commands::DeleteAnglesGroupCommandParams& destination) const noexcept override;

    ConversionResult
    To(Generated::DeleteAnglesGroupCommandParams&& source,
       HighLevelOperations::Commands::DeleteAnglesGroupCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

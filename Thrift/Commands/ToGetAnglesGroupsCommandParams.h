#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetAnglesGroupsCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetAnglesGroupsCommandParams;
} // namespace Generated

/// Reads a domain `GetAnglesGroupsCommandParams` from the wire record `GetAnglesGroupsCommandParams`. It can't fail.
/// The identifier is read regardless of its flag.
class ThriftToGetAnglesGroupsCommandParamsConverter
    : public Converter<Generated::GetAnglesGroupsCommandParams,
                       HighLevelOperations::Commands::GetAnglesGroupsCommandParams>
{
public:
    ConversionResult
    To(Generated::GetAnglesGroupsCommandParams const& source,
       HighLevelOperations::Commands::GetAnglesGroupsCommandParams& destination) const noexcept override;

    ConversionResult
    To(Generated::GetAnglesGroupsCommandParams&& source,
       HighLevelOperations::Commands::GetAnglesGroupsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

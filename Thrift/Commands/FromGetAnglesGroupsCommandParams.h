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

/// Writes a domain `GetAnglesGroupsCommandParams` into the wire record `GetAnglesGroupsCommandParams`. It can't fail.
/// Only the identifier is written.
class GetAnglesGroupsCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetAnglesGroupsCommandParams,
                       Generated::GetAnglesGroupsCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetAnglesGroupsCommandParams const& source,
                        Generated::GetAnglesGroupsCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetAnglesGroupsCommandParams&& source,
                        Generated::GetAnglesGroupsCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

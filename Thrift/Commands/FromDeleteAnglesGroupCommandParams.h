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

/// Writes a domain `DeleteAnglesGroupCommandParams` into the wire record `DeleteAnglesGroupCommandParams`. Both fields
/// are required. It can't fail.
class DeleteAnglesGroupCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::DeleteAnglesGroupCommandParams,
                       Generated::DeleteAnglesGroupCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::DeleteAnglesGroupCommandParams const& source,
                        Generated::DeleteAnglesGroupCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::DeleteAnglesGroupCommandParams&& source,
                        Generated::DeleteAnglesGroupCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

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

/// Writes a domain `CreateAnglesGroupCommandParams` into the wire record `CreateAnglesGroupCommandParams`. It can't
/// fail. The nested command for the clips is written with its own identifier.
class CreateAnglesGroupCommandParamsToThriftConverter
    : public Converter<HighLevelOperations::Commands::CreateAnglesGroupCommandParams,
                       Generated::CreateAnglesGroupCommandParams>
{
public:
    ConversionResult To(HighLevelOperations::Commands::CreateAnglesGroupCommandParams const& source,
                        Generated::CreateAnglesGroupCommandParams& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::CreateAnglesGroupCommandParams&& source,
                        Generated::CreateAnglesGroupCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

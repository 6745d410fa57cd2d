#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct LoadSequencesCommandParams;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class LoadSequencesCommandParams;
} // namespace Generated

/// Reads a domain `LoadSequencesCommandParams` from the wire record `LoadSequencesCommandParams`. It can't fail.
///
/// The identifier is read regardless of its flag. Entries are added to those in the destination, where an existing
/// entry of the same channel keeps its value; a clear flag removes all entries. In an entry, the flag of `sequence` is
/// ignored; other fields that were not sent are 0 and false.
class ThriftToLoadSequencesCommandParamsConverter
    : public Converter<Generated::LoadSequencesCommandParams, HighLevelOperations::Commands::LoadSequencesCommandParams>
{
public:
    ConversionResult To(Generated::LoadSequencesCommandParams const& source,
                        HighLevelOperations::Commands::LoadSequencesCommandParams& destination) const noexcept override;

    ConversionResult To(Generated::LoadSequencesCommandParams&& source,
                        HighLevelOperations::Commands::LoadSequencesCommandParams& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

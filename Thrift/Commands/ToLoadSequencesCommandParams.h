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
/// The identifier is taken whether its flag is set or not. Entries are added to those that the destination holds, of
/// which one of the same channel keeps its value; a clear flag empties them. Of an entry's fields the flag of
/// `sequence` is not read; what else was not sent is 0 and false.
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

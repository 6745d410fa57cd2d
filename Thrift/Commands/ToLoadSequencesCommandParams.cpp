#include "Thrift/Commands/ToLoadSequencesCommandParams.h"

#include "Domain/HighLevelOperations/Commands/LoadSequencesCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/LoadSequencesCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using HighLevelOperations::Commands::LoadSequencesCommandParams;

namespace
{

/// Reads the fields of an entry. The flag of the sequence is ignored.
LoadSequencesCommandParams::PlayerParam ReadSequenceParam(Generated::LoadSequenceCommandParam const& source)
{
    return {ReadGuidAs<Corvane::Data::Sequences::Guid>(source.sequence),
            source.__isset.durationFromBeginning ? source.durationFromBeginning : 0,
            source.__isset.isForDiffusion && source.isForDiffusion};
}

} // namespace

ConversionResult ThriftToLoadSequencesCommandParamsConverter::To(
    Generated::LoadSequencesCommandParams const& source,
    HighLevelOperations::Commands::LoadSequencesCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    ReadByChannel(source.__isset.playersParameters, source.playersParameters, destination.playersParameters,
                  ReadSequenceParam);
    return Success();
}

ConversionResult ThriftToLoadSequencesCommandParamsConverter::To(
    Generated::LoadSequencesCommandParams&& source,
    HighLevelOperations::Commands::LoadSequencesCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#include "Thrift/Commands/FromLoadSequencesCommandParams.h"

#include "Domain/HighLevelOperations/Commands/LoadSequencesCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/LoadSequencesCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using HighLevelOperations::Commands::LoadSequencesCommandParams;

namespace
{

/// Writes the fields of an entry. The flag of the sequence is unchanged.
void SendSequenceParam(LoadSequencesCommandParams::PlayerParam const& source,
                       Generated::LoadSequenceCommandParam& destination)
{
    SendGuid(source.sequence, destination.sequence);
    TALVO_FLAGGED(destination, durationFromBeginning) = source.durationFromBeginning;
    TALVO_FLAGGED(destination, isForDiffusion) = source.isForDiffusion;
}

} // namespace

ConversionResult
LoadSequencesCommandParamsToThriftConverter::To(HighLevelOperations::Commands::LoadSequencesCommandParams const& source,
                                                Generated::LoadSequencesCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    if (SendByChannel(source.playersParameters, destination.playersParameters, SendSequenceParam))
        destination.__isset.playersParameters = true;
    return Success();
}

ConversionResult
LoadSequencesCommandParamsToThriftConverter::To(HighLevelOperations::Commands::LoadSequencesCommandParams&& source,
                                                Generated::LoadSequencesCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

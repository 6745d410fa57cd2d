#include "Thrift/Commands/FromLoadClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/LoadClipsCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Boundaries.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/LoadClipsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using HighLevelOperations::Commands::LoadClipsCommandParams;

namespace
{

/// Writes the fields of an entry. Only the flag of the time point is set; the other flags are unchanged.
void SendClipsParam(LoadClipsCommandParams::PlayerParam const& source, Generated::LoadClipCommandParam& destination)
{
    SendGuid(source.clip, destination.clip);
    TALVO_FLAGGED(destination, timepoint) = source.timepoint.position;
    SendBoundary(source.inBoundary, destination.inBoundary);
    SendBoundary(source.outBoundary, destination.outBoundary);
}

} // namespace

ConversionResult
LoadClipsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::LoadClipsCommandParams const& source,
                                            Generated::LoadClipsCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    if (SendByChannel(source.playersParameters, destination.playersParameters, SendClipsParam))
        destination.__isset.playersParameters = true;
    return Success();
}

ConversionResult
LoadClipsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::LoadClipsCommandParams&& source,
                                            Generated::LoadClipsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#include "Thrift/Commands/ToLoadClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/LoadClipsCommandParams.h"
#include "Thrift/Commands/ByChannel.h"
#include "Thrift/Data/Boundaries.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/LoadClipsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using HighLevelOperations::Commands::LoadClipsCommandParams;

namespace
{

/// Reads the fields of an entry. Only the flag of the time point counts.
LoadClipsCommandParams::PlayerParam ReadClipsParam(Generated::LoadClipCommandParam const& source)
{
    return {ReadGuidAs<Corvane::Data::Clips::Guid>(source.clip),
            source.__isset.timepoint ? TimePoints::TimePoint{source.timepoint} : TimePoints::TimePoint::Empty(),
            ReadBoundary(source.inBoundary), ReadBoundary(source.outBoundary)};
}

} // namespace

ConversionResult ThriftToLoadClipsCommandParamsConverter::To(
    Generated::LoadClipsCommandParams const& source,
    HighLevelOperations::Commands::LoadClipsCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    ReadByChannel(source.__isset.playersParameters, source.playersParameters, destination.playersParameters,
                  ReadClipsParam);
    return Success();
}

ConversionResult ThriftToLoadClipsCommandParamsConverter::To(
    Generated::LoadClipsCommandParams&& source,
    HighLevelOperations::Commands::LoadClipsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

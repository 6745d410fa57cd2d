#include "Thrift/Commands/FromUpdateAnglesGroupCommandParams.h"

#include "Domain/HighLevelOperations/Commands/UpdateAnglesGroupCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/UpdateAnglesGroupCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult UpdateAnglesGroupCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::UpdateAnglesGroupCommandParams const& source,
    Generated::UpdateAnglesGroupCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, destination.commandGuid);
    SendGuid(source.groupGuid, destination.groupGuid);
    if (source.primaryAngle.HasValue()) SendGuid(source.primaryAngle.Value(), TALVO_FLAGGED(destination, primaryAngle));
    if (source.secondaryAngle.HasValue())
        SendGuid(source.secondaryAngle.Value(), TALVO_FLAGGED(destination, secondaryAngle));
    return Success();
}

ConversionResult UpdateAnglesGroupCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::UpdateAnglesGroupCommandParams&& source,
    Generated::UpdateAnglesGroupCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

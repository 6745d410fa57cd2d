#include "Thrift/Commands/ToUpdateAnglesGroupCommandParams.h"

#include "Domain/HighLevelOperations/Commands/UpdateAnglesGroupCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/UpdateAnglesGroupCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToUpdateAnglesGroupCommandParamsConverter::To(
    Generated::UpdateAnglesGroupCommandParams const& source,
    HighLevelOperations::Commands::UpdateAnglesGroupCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    ReadGuid(source.groupGuid, destination.groupGuid);
    if (source.__isset.primaryAngle)
        destination.primaryAngle = ReadGuidAs<Corvane::Data::Clips::Guid>(source.primaryAngle);
    if (source.__isset.secondaryAngle)
        destination.secondaryAngle = ReadGuidAs<Corvane::Data::Clips::Guid>(source.secondaryAngle);
    return Success();
}

ConversionResult ThriftToUpdateAnglesGroupCommandParamsConverter::To(
    Generated::UpdateAnglesGroupCommandParams&& source,
    HighLevelOperations::Commands::UpdateAnglesGroupCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

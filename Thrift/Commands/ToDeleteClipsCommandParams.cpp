#include "Thrift/Commands/ToDeleteClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/DeleteClipsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/DeleteClipsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToDeleteClipsCommandParamsConverter::To(
    Generated::DeleteClipsCommandParams const& source,
    HighLevelOperations::Commands::DeleteClipsCommandParams& destination) const noexcept
{
    static Data::ThriftToGuidConverter const guidConverter;

    ReadGuid(source.commandGuid, destination.commandGuid);
    destination.clips.clear();
    if (source.__isset.clips) AppendAll("clips", guidConverter, source.clips, destination.clips);
    return Success();
}

ConversionResult ThriftToDeleteClipsCommandParamsConverter::To(
    Generated::DeleteClipsCommandParams&& source,
    HighLevelOperations::Commands::DeleteClipsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

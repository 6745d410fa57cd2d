#include "Thrift/Commands/ToDeleteClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/DeleteClipsCommandParams.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Detail/Identifiers.h"
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
    if (source.__isset.clips) AppendAll(guidConverter, source.clips, destination.clips);
    return Success();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

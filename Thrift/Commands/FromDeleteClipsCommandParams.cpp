#include "Thrift/Commands/FromDeleteClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/DeleteClipsCommandParams.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/DeleteClipsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
DeleteClipsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::DeleteClipsCommandParams const& source,
                                              Generated::DeleteClipsCommandParams& destination) const noexcept
{
    static Data::GuidToThriftConverter const guidConverter;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    AppendAll("clips", guidConverter, source.clips, destination.clips);
    if (!source.clips.empty()) destination.__isset.clips = true;
    return Success();
}

ConversionResult
DeleteClipsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::DeleteClipsCommandParams&& source,
                                              Generated::DeleteClipsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#include "Thrift/Commands/FromCreateClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/CreateClipsCommandParams.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/CreateClipsCommandParams_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
CreateClipsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::CreateClipsCommandParams const& source,
                                              Generated::CreateClipsCommandParams& destination) const noexcept
{
    static Data::Clips::ClipToThriftConverter const clipConverter;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    ReserveMore(destination.clips, source.clips.size());
    for (auto const& params : source.clips)
    {
        auto& wireParams = destination.clips.emplace_back();
        SendGuid(params.sourceId, TALVO_FLAGGED(wireParams, sourceId));
        std::ignore = clipConverter.To(params.clip, TALVO_FLAGGED(wireParams, clip));
        TALVO_FLAGGED(wireParams, setTimecodes) = params.setTimecodes;
    }
    if (!source.clips.empty()) destination.__isset.clips = true;
    return Success();
}

ConversionResult
CreateClipsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::CreateClipsCommandParams&& source,
                                              Generated::CreateClipsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

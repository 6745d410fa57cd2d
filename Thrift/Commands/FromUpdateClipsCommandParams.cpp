#include "Thrift/Commands/FromUpdateClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/UpdateClipsCommandParams.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/UpdateClipsCommandParams_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
UpdateClipsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::UpdateClipsCommandParams const& source,
                                              Generated::UpdateClipsCommandParams& destination) const noexcept
{
    static Data::Clips::ClipToThriftConverter const clipConverter;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    ReserveMore(destination.clips, source.clips.size());
    for (auto const& params : source.clips)
    {
        auto& wireParams = destination.clips.emplace_back();
        std::ignore = clipConverter.To(params.oldClip, TALVO_FLAGGED(wireParams, oldClip));
        std::ignore = clipConverter.To(params.newClip, TALVO_FLAGGED(wireParams, newClip));
    }
    if (!source.clips.empty()) destination.__isset.clips = true;
    return Success();
}

ConversionResult
UpdateClipsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::UpdateClipsCommandParams&& source,
                                              Generated::UpdateClipsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

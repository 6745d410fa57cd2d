#include "Thrift/Commands/ToUpdateClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/UpdateClipsCommandParams.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Detail/Identifiers.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/UpdateClipsCommandParams_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToUpdateClipsCommandParamsConverter::To(
    Generated::UpdateClipsCommandParams const& source,
    HighLevelOperations::Commands::UpdateClipsCommandParams& destination) const noexcept
{
    static Data::Clips::ThriftToClipConverter const clipConverter;

    ReadGuid(source.commandGuid, destination.commandGuid);
    destination.clips.clear();
    if (source.__isset.clips)
    {
        ReserveMore(destination.clips, source.clips.size());
        for (auto const& wireParams : source.clips)
        {
            // The flags inside are not read, and what the clips report is not looked at.
            auto& params = destination.clips.emplace_back();
            std::ignore = clipConverter.To(wireParams.oldClip, params.oldClip);
            std::ignore = clipConverter.To(wireParams.newClip, params.newClip);
        }
    }
    return Success();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

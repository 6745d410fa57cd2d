#include "Thrift/Commands/ToUpdateClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/UpdateClipsCommandParams.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/UpdateClipsCommandParams_types.h"

#include <cstddef>
#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToUpdateClipsCommandParamsConverter::ToOrThrow(
    Generated::UpdateClipsCommandParams const& source,
    HighLevelOperations::Commands::UpdateClipsCommandParams& destination) const
{
    static Data::Clips::ThriftToClipConverter const clipConverter;

    ReadGuid(source.commandGuid, destination.commandGuid);
    destination.clips.clear();
    if (source.__isset.clips)
    {
        ReserveMore(destination.clips, source.clips.size());
        for (std::size_t i = 0; i < source.clips.size(); ++i)
        {
            // The flags inside are ignored, and so are the clips' results.
            auto const& wireParams = source.clips[i];
            auto& params = destination.clips.emplace_back();
            std::ignore = Read({"clips", i, "oldClip"}, clipConverter, wireParams.oldClip, params.oldClip);
            std::ignore = Read({"clips", i, "newClip"}, clipConverter, wireParams.newClip, params.newClip);
        }
    }
    return Success();
}

ConversionResult ThriftToUpdateClipsCommandParamsConverter::To(
    Generated::UpdateClipsCommandParams const& source,
    HighLevelOperations::Commands::UpdateClipsCommandParams& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToUpdateClipsCommandParamsConverter::To(
    Generated::UpdateClipsCommandParams&& source,
    HighLevelOperations::Commands::UpdateClipsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

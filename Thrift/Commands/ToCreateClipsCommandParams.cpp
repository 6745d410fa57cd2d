#include "Thrift/Commands/ToCreateClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/CreateClipsCommandParams.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/CreateClipsCommandParams_types.h"

#include <cstddef>
#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToCreateClipsCommandParamsConverter::ToOrThrow(
    Generated::CreateClipsCommandParams const& source,
    HighLevelOperations::Commands::CreateClipsCommandParams& destination) const
{
    static Data::Clips::ThriftToClipConverter const clipConverter;

    ReadGuid(source.commandGuid, destination.commandGuid);
    destination.clips.clear();
    if (source.__isset.clips)
    {
        ReserveMore(destination.clips, source.clips.size());
        for (std::size_t i = 0; i < source.clips.size(); ++i)
        {
            // The flags inside are ignored, and so is the clip's result.
            auto const& wireParams = source.clips[i];
            auto& params = destination.clips.emplace_back();
            ReadGuid(wireParams.sourceId, params.sourceId);
            std::ignore = Read({"clips", i, "clip"}, clipConverter, wireParams.clip, params.clip);
            params.setTimecodes = wireParams.setTimecodes;
        }
    }
    return Success();
}

ConversionResult ThriftToCreateClipsCommandParamsConverter::To(
    Generated::CreateClipsCommandParams const& source,
    HighLevelOperations::Commands::CreateClipsCommandParams& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToCreateClipsCommandParamsConverter::To(
    Generated::CreateClipsCommandParams&& source,
    HighLevelOperations::Commands::CreateClipsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

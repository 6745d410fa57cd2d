#include "Thrift/Commands/ToCreateClipsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/CreateClipsCommandParams.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Detail/Identifiers.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/CreateClipsCommandParams_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToCreateClipsCommandParamsConverter::To(
    Generated::CreateClipsCommandParams const& source,
    HighLevelOperations::Commands::CreateClipsCommandParams& destination) const noexcept
{
    static Data::Clips::ThriftToClipConverter const clipConverter;

    ReadGuid(source.commandGuid, destination.commandGuid);
    destination.clips.clear();
    if (source.__isset.clips)
    {
        ReserveMore(destination.clips, source.clips.size());
        for (auto const& wireParams : source.clips)
        {
            // The flags inside are not read, and what the clip reports is not looked at.
            auto& params = destination.clips.emplace_back();
            ReadGuid(wireParams.sourceId, params.sourceId);
            std::ignore = clipConverter.To(wireParams.clip, params.clip);
            params.setTimecodes = wireParams.setTimecodes;
        }
    }
    return Success();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

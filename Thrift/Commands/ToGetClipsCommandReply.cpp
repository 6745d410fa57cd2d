#include "Thrift/Commands/ToGetClipsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetClipsCommandReply.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetClipsCommandReply_types.h"

#include <cstddef>
#include <list>
#include <tuple>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
ThriftToGetClipsCommandReplyConverter::ToOrThrow(Generated::GetClipsCommandReply const& source,
                                                 HighLevelOperations::Commands::GetClipsCommandReply& destination) const
{
    Data::Clips::ThriftToClipConverter const toClip;
    auto const& isset = source.__isset;

    auto const guid = isset.guid ? ReadGuidAs<Corvane::Data::Guid>(source.guid) : Corvane::Data::Guid::Empty();
    std::list<Corvane::Data::Clips::Clip> clips;
    if (isset.clips)
    {
        for (std::size_t i = 0; i < source.clips.size(); ++i)
            std::ignore = Read({"clips", i}, toClip, source.clips[i], clips.emplace_back());
    }
    // A revision alone does not count, but the destination takes it.
    destination = {guid, isset.revision ? source.revision : 0, std::move(clips)};
    return isset.guid || isset.clips ? Success() : Failure("GetClipsCommandReply is empty");
}

ConversionResult ThriftToGetClipsCommandReplyConverter::To(
    Generated::GetClipsCommandReply const& source,
    HighLevelOperations::Commands::GetClipsCommandReply& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToGetClipsCommandReplyConverter::To(
    Generated::GetClipsCommandReply&& source,
    HighLevelOperations::Commands::GetClipsCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

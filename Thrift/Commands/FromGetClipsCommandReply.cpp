#include "Thrift/Commands/FromGetClipsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetClipsCommandReply.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetClipsCommandReply_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
GetClipsCommandReplyToThriftConverter::To(HighLevelOperations::Commands::GetClipsCommandReply const& source,
                                          Generated::GetClipsCommandReply& destination) const noexcept
{
    Data::Clips::ClipToThriftConverter const fromItem;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, guid));
    // From the current position of the cursor to the end. The results of the items are ignored.
    ReserveFor(destination.clips, source);
    while (source.MoveNext())
    {
        std::ignore = fromItem.To(source.CurrentClip(), destination.clips.emplace_back());
        destination.__isset.clips = true;
    }
    TALVO_FLAGGED(destination, revision) = source.revision;
    return Success();
}

ConversionResult GetClipsCommandReplyToThriftConverter::To(HighLevelOperations::Commands::GetClipsCommandReply&& source,
                                                           Generated::GetClipsCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

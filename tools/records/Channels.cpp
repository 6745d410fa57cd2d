#include "tools/RecordTypes.h"

#include "generated/LoadBoundary_types.h"
#include "generated/PlayerClipOnAir_types.h"
#include "generated/PlayerInfoOnAir_types.h"
#include "generated/PlayerState_types.h"
#include "generated/RecorderState_types.h"
#include "generated/ServerInfo_types.h"

namespace Talvo::Tools
{

std::vector<RecordType> ChannelRecords()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Data::Channels;

    return {
        Record<Generated::AbsoluteLoadBoundary>("AbsoluteLoadBoundary"),
        Record<Generated::LoadBoundary>("LoadBoundary"),
        Record<Generated::PlayerClipOnAir>("PlayerClipOnAir"),
        Record<Generated::PlayerInfoOnAir>("PlayerInfoOnAir"),
        Record<Generated::PlayerState>("PlayerState"),
        Record<Generated::RecorderState>("RecorderState"),
        Record<Generated::RelativeLoadBoundary>("RelativeLoadBoundary"),
        Record<Generated::SpecializedLoadBoundary>("SpecializedLoadBoundary"),
    };
}

std::vector<RecordType> ServerRecords()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Data::Servers;

    return {
        Record<Generated::ServerInfo>("ServerInfo"),
    };
}

} // namespace Talvo::Tools

#pragma once

#include "tools/records/Channels.h"
#include "tools/records/Clips.h"
#include "tools/records/Commands.h"
#include "tools/records/Common.h"
#include "tools/records/Notifier.h"
#include "tools/records/Sequences.h"

#include <string_view>
#include <tuple>

namespace Talvo::Tools
{

/// Calls `use(record, group)` for each of the 113 records; `group` is the short name of its namespace.
void ForEachRecord(auto const& use)
{
    auto const forEach = [&use](auto const& records, std::string_view const group)
    { std::apply([&use, group](auto const&... record) { (use(record, group), ...); }, records); };

    forEach(CommonRecords(), "Common");
    forEach(GroupRecords(), "Groups");
    forEach(ClipRecords(), "Clips");
    forEach(ChannelRecords(), "Channels");
    forEach(SequenceRecords(), "Sequences");
    forEach(ServerRecords(), "Servers");
    forEach(CommandRecords(), "Commands");
    forEach(NotifierRecords(), "Notifier");
}

} // namespace Talvo::Tools

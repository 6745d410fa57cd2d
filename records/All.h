#pragma once

#include "records/Channels.h"
#include "records/Clips.h"
#include "records/Commands.h"
#include "records/Common.h"
#include "records/Notifier.h"
#include "records/Sequences.h"

#include <string_view>
#include <type_traits>

namespace Talvo::Records
{

using AllPairs =
    PairList<decltype(CommonPairs()), decltype(ClipPairs()), decltype(ChannelPairs()), decltype(SequencePairs()),
             decltype(ServerPairs()), decltype(CommandPairs()), decltype(NotifierPairs())>;

/// Calls `use(pair, name, group)` for each record of the schema; `group` is the short name of its namespace.
void ForEachRecord(auto const& use)
{
    VisitRecords(
        [&use]<typename TWire>(std::type_identity<TWire> const wire, std::string_view const name,
                               std::string_view const group)
        {
            if constexpr (requires { AllPairs::Of(wire); })
                use(decltype(AllPairs::Of(wire))(), name, group);
            else
                use(NoPair<TWire>(), name, group);
        });
}

} // namespace Talvo::Records

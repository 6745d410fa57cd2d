#include "tools/RecordTypes.h"

#include "tools/Failure.h"
#include "tools/records/Channels.h"
#include "tools/records/Clips.h"
#include "tools/records/Commands.h"
#include "tools/records/Common.h"
#include "tools/records/Notifier.h"
#include "tools/records/Sequences.h"

#include <algorithm>
#include <string>
#include <tuple>

namespace Talvo::Tools
{

namespace
{

/// Appends the types of a group's records, which are a tuple.
void Append(std::vector<RecordType>& types, std::string_view group, auto const& records)
{
    std::apply([&types, group](auto const&... record) { (types.push_back(TypeOf(record, group)), ...); }, records);
}

std::vector<RecordType> AllRecords()
{
    std::vector<RecordType> types;
    Append(types, "Common", CommonRecords());
    Append(types, "Groups", GroupRecords());
    Append(types, "Clips", ClipRecords());
    Append(types, "Channels", ChannelRecords());
    Append(types, "Sequences", SequenceRecords());
    Append(types, "Servers", ServerRecords());
    Append(types, "Commands", CommandRecords());
    Append(types, "Notifier", NotifierRecords());
    return types;
}

} // namespace

std::vector<RecordType> const& RecordTypes()
{
    static std::vector<RecordType> const types = AllRecords();
    return types;
}

RecordType const& FindRecordType(std::string_view name)
{
    auto const& types = RecordTypes();
    auto const found = std::ranges::find(types, name, &RecordType::name);
    if (found == types.end())
        throw Failure("there is no record '" + std::string(name) + "'; talvo-wire list names them all");
    return *found;
}

} // namespace Talvo::Tools

#include "tools/RecordTypes.h"

#include "tools/Failure.h"

#include <algorithm>
#include <string>

namespace Talvo::Tools
{

namespace
{

void Append(std::vector<RecordType>& types, std::string_view group, std::vector<RecordType> const& added)
{
    for (auto type : added)
    {
        type.group = group;
        types.push_back(type);
    }
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

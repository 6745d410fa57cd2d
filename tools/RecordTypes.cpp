#include "tools/RecordTypes.h"

#include "tools/Failure.h"
#include "tools/records/All.h"

#include <algorithm>
#include <string>

namespace Talvo::Tools
{

std::vector<RecordType> const& RecordTypes()
{
    static auto const types = []
    {
        std::vector<RecordType> all;
        ForEachRecord([&all](auto const& record, auto const group) { all.push_back(TypeOf(record, group)); });
        return all;
    }();
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

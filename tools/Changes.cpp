#include "tools/Changes.h"

#include "TimePoints/TalvoTimeCodeFormatter.h"
#include "TimePoints/TimeCode.h"
#include "TimePoints/TimePoint.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>
#include <type_traits>
#include <unordered_set>

namespace Talvo::Tools
{

namespace
{

constexpr char Changed[] = "changed";

/// A value of another type at the same path.
template<typename T, typename U>
std::string Why(T const&, U const&)
{
    return Changed;
}

std::string Why(std::string const& before, std::string const& after)
{
    static std::string const noTimeCode = TimePoints::TalvoTimeCodeFormatter().Format(TimePoints::TimeCode::Empty());
    if (after.empty()) return "emptied";
    if (after == noTimeCode) return "became the empty time code";
    auto const size = std::to_string(after.size()) + " bytes";
    if (before.starts_with(after)) return "cut to " + size;
    if (after.starts_with(before) && after.find_first_not_of('\0', before.size()) == std::string::npos)
        return "padded with zero bytes to " + size;
    return Changed;
}

/// Numbers lose their upper half where the domain's are half as wide.
template<typename T>
requires std::is_integral_v<T> std::string Why(T const before, T const after)
{
    constexpr int Bits = std::numeric_limits<std::make_unsigned_t<T>>::digits / 2;
    if (after == 0) return "became 0";
    if (std::is_same_v<T, std::int64_t> && after == TimePoints::TimePoint::Empty().position)
        return "became no time point";
    if (after == (before & ((T{1} << Bits) - 1))) return "cut to its low " + std::to_string(Bits) + " bits";
    return Changed;
}

std::string Why(bool, bool)
{
    return Changed;
}

/// An empty container that the other record has too, filled.
bool IsFilledIn(FieldList const& other, Field const& field)
{
    return std::holds_alternative<Empty>(field.value) && other.containers.contains(field.path);
}

std::string WhyGone(Field const& field, FieldList const& after)
{
    if (IsFilledIn(after, field)) return "no longer empty";
    auto const& path = field.path;
    for (auto open = path.find('['); open != std::string::npos; open = path.find('[', open + 1))
    {
        auto const list = after.containers.find(path.substr(0, open));
        if (list == after.containers.end() || !list->second) continue;
        std::size_t index = 0;
        std::from_chars(path.data() + open + 1, path.data() + path.size(), index);
        if (index >= *list->second) return "list cut to " + std::to_string(*list->second) + " elements";
    }
    return "dropped";
}

std::string WhyAdded(Field const& field, FieldList const& before)
{
    return IsFilledIn(before, field) ? "emptied" : "not in the file";
}

std::unordered_set<std::string_view> Paths(FieldList const& list)
{
    std::unordered_set<std::string_view> paths;
    for (auto const& field : list.fields) paths.insert(field.path);
    return paths;
}

} // namespace

std::vector<FieldChange> Compare(FieldList const& before, FieldList const& after)
{
    std::vector<FieldChange> changes;
    auto const pathsBefore = Paths(before);
    auto const pathsAfter = Paths(after);
    auto added = after.fields.begin();
    auto const takeAdded = [&]
    {
        for (; added != after.fields.end() && !pathsBefore.contains(added->path); ++added)
            changes.push_back({added->path, std::nullopt, added->value, WhyAdded(*added, before)});
    };

    // Both lists follow the schema, so the paths that they share stand in the same order.
    for (auto const& field : before.fields)
    {
        if (!pathsAfter.contains(field.path))
        {
            changes.push_back({field.path, field.value, std::nullopt, WhyGone(field, after)});
            continue;
        }
        takeAdded();
        if (added->value != field.value)
        {
            auto why =
                std::visit([](auto const& was, auto const& is) { return Why(was, is); }, field.value, added->value);
            changes.push_back({field.path, field.value, added->value, std::move(why)});
        }
        ++added;
    }
    takeAdded();
    return changes;
}

} // namespace Talvo::Tools

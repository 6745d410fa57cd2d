#include "tools/Changes.h"

#include "TimePoints/TalvoTimeCodeFormatter.h"
#include "TimePoints/TimeCode.h"
#include "TimePoints/TimePoint.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <type_traits>
#include <variant>

namespace Talvo::Tools
{

namespace
{

constexpr char Changed[] = "changed";

/// A value of another type at the same path.
template<typename T, typename U>
std::string Reason(T const&, U const&)
{
    return Changed;
}

std::string Reason(std::string_view const before, std::string_view const after)
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
requires std::is_integral_v<T> std::string Reason(T const before, T const after)
{
    constexpr int Bits = std::numeric_limits<std::make_unsigned_t<T>>::digits / 2;
    if (after == 0) return "became 0";
    if (std::is_same_v<T, std::int64_t> && after == TimePoints::TimePoint::Empty().position)
        return "became no time point";
    if (after == (before & ((T{1} << Bits) - 1))) return "cut to its low " + std::to_string(Bits) + " bits";
    return Changed;
}

std::string Reason(Records::Enumerator const before, Records::Enumerator const after)
{
    return Reason(before.number, after.number);
}

std::string Reason(Records::WireText const& before, Records::WireText const& after)
{
    return Reason(before.bytes, after.bytes);
}

std::string Reason(bool, bool)
{
    return Changed;
}

} // namespace

std::string Why(Records::Place const& place)
{
    if (!place.before) return place.inBoth ? "emptied" : "not in the file";
    if (!place.after)
    {
        if (place.inBoth) return "no longer empty";
        return place.cutTo ? "list cut to " + std::to_string(*place.cutTo) + " elements" : "dropped";
    }
    return std::visit([](auto const& was, auto const& is) { return Reason(was, is); }, *place.before, *place.after);
}

} // namespace Talvo::Tools

// Reads arbitrary bytes as any record that converts both ways, and converts the record to the domain and back
// repeatedly, with the checked conversion. Nothing may end the process. The second domain object has to equal the
// first, except for known losses. After that nothing may change: no domain object and, for those without equality, no
// byte.
//
// The first byte selects the record, the second the protocol.

#include "tools/Failure.h"
#include "tools/Protocols.h"
#include "tools/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace
{

using namespace Talvo::Tools;

std::vector<RecordType> ConvertibleTypes()
{
    auto types = RecordTypes();
    std::erase_if(types, [](RecordType const& type) { return !type.ConvertsBothWays(); });
    return types;
}

std::unique_ptr<WireRecord> Read(std::string const& bytes, Protocol const protocol, RecordType const& type)
{
    try
    {
        return Decode(Message(bytes, protocol, type)).record;
    }
    catch (Failure const&)
    {
        return nullptr;
    }
}

/// Whether each conversion to the domain generates a new identifier for this record.
bool GetsNewIdentifier(RecordType const& type)
{
    return type.name == "LiveCommandParams" || type.name == "SetMultiviewerDataCommandParams";
}

/// Whether `value` is one of the numbers from 1 to `last`.
bool IsKnown(Value const& value, std::int32_t const last)
{
    auto const* const enumerator = std::get_if<Talvo::Records::Enumerator>(&value);
    return enumerator != nullptr && 1 <= enumerator->number && enumerator->number <= last;
}

/// Records that hold a state, a recording range or a sequence, whose pairs, time codes and rates are converted back
/// only under conditions.
constexpr std::array TravelUnderConditions{
    std::string_view("PlayerState"),
    std::string_view("RecorderState"),
    std::string_view("Sequence"),
    std::string_view("Playlist"),
    std::string_view("GetChannelsCommandReply"),
    std::string_view("CreatePlaylistsCommandParams"),
    std::string_view("UpdatePlaylistsCommandParams"),
    std::string_view("GetPlaylistsCommandReply"),
    std::string_view("PlayerStateChangedEventArgs"),
    std::string_view("RecorderStateChangedEventArgs"),
    std::string_view("RecordingRangesChangedEventArgs"),
};

/// Whether a record holds values that reach the domain but not the record that is converted back: texts of a fixed
/// width then end at their first NUL, and an HDR profile without a number or an essence that was not recorded is not
/// written and reads as the default.
bool LosesOnTheWayBack(WireRecord const& record, RecordType const& type)
{
    if (std::ranges::find(TravelUnderConditions, type.name) != TravelUnderConditions.end()) return true;

    std::map<std::string, Value> values;
    record.VisitValues(record, Talvo::Records::FieldSet::Written,
                       [&](Place const& place)
                       {
                           if (place.after) values.emplace(PathText(place.path), *place.after);
                       });
    auto const isLost = [&](auto const& entry)
    {
        auto const& [path, value] = entry;
        if (path.ends_with("hdrProfile")) return !IsKnown(value, 5);
        if (auto const essence = path.find("Essence."); essence != std::string::npos)
        {
            auto const status = values.find(path.substr(0, essence) + "Essence.recordingStatus");
            return status == values.end() || !IsKnown(status->second, 4);
        }
        auto const* const text = std::get_if<Talvo::Records::WireText>(&value);
        return !path.ends_with("uid.value") && text != nullptr && text->bytes.find('\0') != std::string_view::npos;
    };
    return std::ranges::any_of(values, isLost);
}

bool Converts(RecordType const& type, WireRecord const& record)
{
    auto const domain = type.makeDomain(record);
    return type.convertToDomain(record, *domain, Talvo::Records::Form::Checked).success;
}

bool BecomesTheSame(WireRecord const& left, WireRecord const& right, RecordType const& type)
{
    return type.equal == nullptr || !Converts(type, right) || SameDomain(type, left, right);
}

[[noreturn]] void Report(RecordType const& type, char const* const finding)
{
    std::fprintf(stderr, "%.*s %s\n", static_cast<int>(type.name.size()), type.name.data(), finding);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* const data, std::size_t const size)
{
    static auto const types = ConvertibleTypes();
    if (size < 2) return 0;
    auto const& type = types[data[0] % types.size()];
    auto const protocol = data[1] % 2 == 0 ? Protocol::Binary : Protocol::Compact;

    auto const sent = Read(std::string(reinterpret_cast<char const*>(data + 2), size - 2), protocol, type);
    if (sent == nullptr) return 0;
    auto const back = ThroughDomain(type, *sent).record;
    if (back == nullptr) return 0;
    if (GetsNewIdentifier(type)) return 0;
    if (!BecomesTheSame(*sent, *back, type) && !LosesOnTheWayBack(*sent, type))
        Report(type, "becomes another domain object on its second trip");

    auto const again = ThroughDomain(type, *back).record;
    if (again == nullptr) return 0;
    if (!BecomesTheSame(*back, *again, type)) Report(type, "becomes another domain object on its third trip");
    auto const last = ThroughDomain(type, *again).record;
    if (last != nullptr && Encode(*last, Protocol::Binary) != Encode(*again, Protocol::Binary))
        Report(type, "changes on its third trip");
    return 0;
}

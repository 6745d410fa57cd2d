// Any bytes as any record that converts both ways: read, asked for hazards and, where there is none, taken to the domain and
// back three times. Nothing may end the process, and from the second trip on nothing may change any more: what a record
// loses, it loses at once or, where a text that was written can't be read again, on the second trip.
//
// The first byte chooses the record, the second the protocol.

#include "tools/Failure.h"
#include "tools/Protocols.h"
#include "tools/RecordTypes.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace
{

using namespace Talvo::Tools;

std::vector<RecordType> ConvertibleTypes()
{
    auto types = RecordTypes();
    std::erase_if(types, [](RecordType const& type) { return type.throughDomain == nullptr; });
    return types;
}

std::unique_ptr<WireRecord> Read(std::string const& bytes, Protocol const protocol, RecordType const& type)
{
    try
    {
        return Decode(bytes, protocol, type).record;
    }
    catch (Failure const&)
    {
        return nullptr;
    }
}

/// The record that came back, or nothing where a conversion failed or would end the process.
std::unique_ptr<WireRecord> ThroughDomain(WireRecord const& record, RecordType const& type)
{
    if (!type.findHazards(record).empty()) return nullptr;
    return type.throughDomain(record).record;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* const data, std::size_t const size)
{
    static auto const types = ConvertibleTypes();
    if (size < 2) return 0;
    auto const& type = types[data[0] % types.size()];
    auto const protocol = data[1] % 2 == 0 ? Protocol::Binary : Protocol::Compact;

    auto record = Read(std::string(reinterpret_cast<char const*>(data + 2), size - 2), protocol, type);
    std::string before;
    for (int trip = 1; record != nullptr && trip <= 3; ++trip)
    {
        record = ThroughDomain(*record, type);
        if (record == nullptr) return 0;
        auto const after = Encode(*record, Protocol::Binary);
        // A live command without players gets a new identifier on every trip.
        if (trip == 3 && after != before && type.name != "LiveCommandParams")
        {
            std::fprintf(stderr, "%.*s changes on its third trip\n", static_cast<int>(type.name.size()),
                         type.name.data());
            std::abort();
        }
        before = after;
    }
    return 0;
}

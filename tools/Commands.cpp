#include "tools/Commands.h"

#include "tools/Changes.h"
#include "tools/Failure.h"
#include "tools/FieldList.h"
#include "tools/Files.h"
#include "tools/Json.h"

#include <cstdint>
#include <iomanip>
#include <iostream>
#include <limits>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Talvo::Tools
{

namespace
{

std::string_view Directions(RecordType const& type)
{
    if (type.toDomain && type.toWire) return "both";
    if (type.toDomain) return "to domain";
    if (type.toWire) return "to wire";
    return "-";
}

std::string FileName(Source const& source)
{
    return source.path == "-" ? "standard input" : source.path;
}

/// Reads a file and calls `decode` with its bytes; a failure of that names the file.
template<typename TDecode>
auto Load(Source const& source, TDecode const& decode)
{
    auto const bytes = ReadFile(source.path, source.limits.bytes);
    try
    {
        return decode(bytes);
    }
    catch (Failure const& failure)
    {
        throw Failure(FileName(source) + ": " + failure.what());
    }
}

Decoded LoadRecord(Source const& source, RecordType const& type)
{
    auto decoded =
        Load(source, [&](std::string const& bytes) { return Decode(bytes, source.protocol, type, source.limits); });
    if (decoded.skippedFields > 0)
        std::cerr << "talvo-wire: note: " << FileName(source) << " holds " << decoded.skippedFields
                  << " fields that the record does not have; they were skipped\n";
    return decoded;
}

/// What became of the values of a record on a round trip.
struct Tally
{
    std::size_t kept = 0;
    std::size_t changed = 0;
    std::size_t gone = 0;
    std::size_t added = 0;
};

/// A record's way to the domain and back, as far as it came.
struct Journey
{
    std::optional<Common::Serialization::ConversionResult> toDomain;
    std::optional<Common::Serialization::ConversionResult> toWire;
    std::unique_ptr<WireRecord> record; ///< Null unless both conversions succeeded.
    std::vector<FieldChange> changes;
    Tally tally;
};

Journey Travel(RecordType const& type, Decoded const& decoded)
{
    Journey journey;
    auto trip = type.throughDomain(*decoded.record);
    journey.toDomain = std::move(trip.toDomain);
    journey.toWire = std::move(trip.toWire);
    journey.record = std::move(trip.record);
    if (journey.record == nullptr) return journey;

    auto const before = ListFields(decoded);
    journey.changes = Compare(before, ListFields(*journey.record));
    auto& tally = journey.tally;
    for (auto const& change : journey.changes)
        ++(!change.after ? tally.gone : !change.before ? tally.added : tally.changed);
    tally.kept = before.fields.size() - tally.changed - tally.gone;
    return journey;
}

/// Tells on standard error what kept a record from coming back.
void ReportFailures(RecordType const& type, Journey const& journey)
{
    auto const report = [&](std::string const& text)
    { std::cerr << "talvo-wire: " << type.name << ' ' << text << '\n'; };
    if (journey.toDomain && !journey.toDomain->success)
        report("wire to domain failed: " + Escaped(journey.toDomain->message));
    if (journey.toWire && !journey.toWire->success)
        report("domain to wire failed: " + Escaped(journey.toWire->message));
}

void PrintAsText(Journey const& journey, Style const& style)
{
    auto const print = [&](char const* direction, std::optional<Common::Serialization::ConversionResult> const& result)
    {
        if (!result) return;
        std::cout << direction << ": "
                  << (result->success ? Painted("success", Colour::Green, style)
                                      : Painted("failure", Colour::Red, style))
                  << '\n';
    };
    print("wire to domain", journey.toDomain);
    print("domain to wire", journey.toWire);
    if (journey.record == nullptr) return;

    std::vector<Row> rows{{{"path", "before", "after", "why"}, Colour::Bold}};
    auto const text = [](std::optional<Value> const& value) { return value ? ValueText(*value) : "-"; };
    for (auto const& change : journey.changes)
        rows.push_back({{change.path, text(change.before), text(change.after), change.why},
                        !change.after    ? Colour::Red
                        : !change.before ? Colour::Green
                                         : Colour::Yellow});
    if (!journey.changes.empty()) PrintTable(rows, style);
    auto const& tally = journey.tally;
    std::cout << "values: " << tally.kept << " kept, " << tally.changed << " changed, " << tally.gone << " gone, "
              << tally.added << " added\n";
}

void PrintAsJson(RecordType const& type, Journey const& journey)
{
    auto const& tally = journey.tally;
    PrintObject(
        {{"record", type.name},
         {"toDomain", ToJson(journey.toDomain)},
         {"toWire", ToJson(journey.toWire)},
         {"values", {{"kept", tally.kept}, {"changed", tally.changed}, {"gone", tally.gone}, {"added", tally.added}}}},
        "changes", journey.changes);
}

} // namespace

void List(Style const& style)
{
    if (style.json)
    {
        PrintArray(RecordTypes());
        std::cout << '\n';
        return;
    }
    for (auto const& type : RecordTypes())
        std::cout << std::left << std::setw(42) << type.name << std::setw(11) << type.group << Directions(type) << '\n';
}

void Print(Source const& source, Style const& style)
{
    auto const& type = FindRecordType(source.record);
    auto const list = ListFields(LoadRecord(source, type));
    if (style.json)
    {
        PrintObject({{"record", type.name}}, "values", list.fields);
        return;
    }
    std::cout << Painted(std::string(type.name), Colour::Bold, style) << '\n';
    for (auto const& field : list.fields)
        std::cout << "  " << Painted(field.path, Colour::Cyan, style) << " = " << ValueText(field.value) << '\n';
}

ExitStatus Convert(Source const& source, Target const& target, Style const& style)
{
    auto const& type = FindRecordType(source.record);
    if (type.throughDomain == nullptr)
        throw Failure(std::string(type.name) +
                      " has no converters in both directions; talvo-wire list tells which have");

    auto const journey = Travel(type, LoadRecord(source, type));
    if (style.json)
        PrintAsJson(type, journey);
    else
        PrintAsText(journey, style);
    ReportFailures(type, journey);
    if (journey.record == nullptr) return ExitStatus::ConversionFailed;

    if (!target.path.empty()) WriteFile(target.path, Encode(*journey.record, target.protocol));
    return ExitStatus::Done;
}

void Transcode(Source const& source, Target const& target)
{
    auto const& type = FindRecordType(source.record);
    auto const [before, bytes] =
        Load(source,
             [&](std::string const& read)
             {
                 return std::pair(ListFields(Decode(read, source.protocol, type, source.limits)),
                                  Transcode(read, source.protocol, type, source.limits, target.protocol));
             });
    WriteFile(target.path, bytes);

    // Thrift's JSON reader drops zero bytes, so not every record comes back from it.
    Limits const anySize{std::numeric_limits<std::int32_t>::max(), source.limits.elements};
    auto const lost = Compare(before, ListFields(Decode(bytes, target.protocol, type, anySize)));
    if (!lost.empty())
        std::cerr << "talvo-wire: note: " << Name(target.protocol) << " does not keep this record; " << lost.size()
                  << " of its values read back different, such as " << lost.front().path << '\n';
}

} // namespace Talvo::Tools

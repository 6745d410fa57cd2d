#include "tools/Commands.h"

#include "tools/Changes.h"
#include "tools/Encoder.h"
#include "tools/Failure.h"
#include "tools/Files.h"
#include "tools/Json.h"
#include "tools/Text.h"

#include <algorithm>
#include <cstddef>
#include <iomanip>
#include <iostream>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace Talvo::Tools
{

namespace
{

using Common::Serialization::ConversionResult;
using Records::FieldSet;

std::string_view Directions(RecordType const& type)
{
    if (type.toDomain && type.toWire) return "both";
    if (type.toDomain) return "to domain";
    if (type.toWire) return "to wire";
    return "-";
}

/// `name` is what notes call the record.
std::unique_ptr<WireRecord> ReadRecord(Message const& message, std::string const& name)
{
    auto decoded = Decode(message);
    if (decoded.skippedFields > 0)
        Report("note: " + name + " holds " + std::to_string(decoded.skippedFields) +
               " fields that the record does not have; they were skipped");
    return std::move(decoded.record);
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
    ConversionResult toDomain;
    std::optional<ConversionResult> toWire;
    std::unique_ptr<WireRecord> before; ///< These two are null unless both conversions succeeded.
    std::unique_ptr<WireRecord> after;

    /// Visits every value of the two.
    template<typename TVisit>
    void VisitValues(TVisit const& visit) const
    {
        if (after != nullptr) before->VisitValues(*after, FieldSet::Written, visit);
    }

    /// Visits those that differ.
    template<typename TVisit>
    void VisitChanges(TVisit const& visit) const
    {
        VisitValues(
            [&](Place const& place)
            {
                if (place.before != place.after) visit(place);
            });
    }
};

/// Of the record, the domain object and the record that comes back, two are in memory at once and no more.
Journey Travel(Message const& message, std::string const& name)
{
    auto const& type = message.Type();
    Journey journey;
    auto record = ReadRecord(message, name);
    auto domain = type.makeDomain(*record);
    journey.toDomain = type.convertToDomain(*record, *domain, Records::Form::Checked);
    record.reset();
    if (!journey.toDomain.success) return journey;

    auto back = type.make();
    journey.toWire = type.convertToWire(*domain, *back, Records::Form::Movable);
    domain.reset();
    if (!journey.toWire->success) return journey;

    journey.before = Decode(message).record;
    journey.after = std::move(back);
    return journey;
}

Tally TallyOf(Journey const& journey)
{
    Tally tally;
    journey.VisitValues(
        [&](Place const& place)
        {
            ++(!place.after                  ? tally.gone
               : !place.before               ? tally.added
               : place.before == place.after ? tally.kept
                                             : tally.changed);
        });
    return tally;
}

/// Reports on standard error what kept a record from coming back.
void ReportFailures(RecordType const& type, Journey const& journey)
{
    auto const report = [&](std::string const& direction, ConversionResult const& result)
    {
        if (!result.success) Report(std::string(type.name) + ' ' + direction + " failed: " + result.message);
    };
    report("wire to domain", journey.toDomain);
    if (journey.toWire) report("domain to wire", *journey.toWire);
}

/// The start of an object whose first member is the path of a value.
void PrintJsonPath(std::span<Step const> const path)
{
    std::cout << R"({"path":)";
    PrintJson(std::cout, PathText(path));
}

/// Prints a table of what `visitAll` visits; `why` gives its last column.
void PrintChanges(Table::Cells const& titles, auto const& visitAll, std::string (*const why)(Place const&),
                  Style const& style)
{
    auto const text = [](std::optional<Value> const& value) { return value ? ValueText(*value) : "-"; };
    auto const cells = [&](Place const& place) -> Table::Cells {
        return {PathText(place.path), text(place.before), text(place.after), why(place)};
    };
    Table table(style);
    table.Measure(titles);
    visitAll([&](Place const& place) { table.Measure(cells(place)); });
    table.Print(titles, Colour::Bold);
    visitAll(
        [&](Place const& place) {
            table.Print(cells(place), !place.after ? Colour::Red : !place.before ? Colour::Green : Colour::Yellow);
        });
}

/// Prints them as a JSON array.
void PrintJsonChanges(auto const& visitAll, std::string (*const why)(Place const&))
{
    JsonArray changes;
    visitAll(
        [&](Place const& place)
        {
            changes.Next();
            PrintJsonPath(place.path);
            std::cout << R"(,"before":)";
            PrintJsonValue(std::cout, place.before);
            std::cout << R"(,"after":)";
            PrintJsonValue(std::cout, place.after);
            std::cout << R"(,"why":")" << why(place) << "\"}";
        });
    changes.End();
}

void PrintAsText(Journey const& journey, Style const& style)
{
    auto const print = [&](char const* const direction, ConversionResult const& result)
    {
        std::cout << direction << ": "
                  << (result.success ? Painted("success", Colour::Green, style)
                                     : Painted("failure", Colour::Red, style))
                  << '\n';
    };
    print("wire to domain", journey.toDomain);
    if (journey.toWire) print("domain to wire", *journey.toWire);
    if (journey.after == nullptr) return;

    auto const tally = TallyOf(journey);
    if (tally.changed + tally.gone + tally.added > 0)
        PrintChanges(
            {"path", "before", "after", "why"}, [&](auto const& visit) { journey.VisitChanges(visit); }, &Why, style);
    std::cout << "values: " << tally.kept << " kept, " << tally.changed << " changed, " << tally.gone << " gone, "
              << tally.added << " added\n";
}

void PrintResult(ConversionResult const& result)
{
    std::cout << R"({"success":)" << (result.success ? "true" : "false") << R"(,"message":)";
    PrintJson(std::cout, result.message);
    std::cout << '}';
}

void PrintAsJson(RecordType const& type, Journey const& journey)
{
    auto const tally = TallyOf(journey);
    std::cout << R"({"record": ")" << type.name << "\",\n\"toDomain\": ";
    PrintResult(journey.toDomain);
    std::cout << ",\n\"toWire\": ";
    if (journey.toWire)
        PrintResult(*journey.toWire);
    else
        std::cout << "null";
    std::cout << ",\n\"values\": {\"kept\":" << tally.kept << ",\"changed\":" << tally.changed
              << ",\"gone\":" << tally.gone << ",\"added\":" << tally.added << "},\n\"changes\": ";

    PrintJsonChanges([&](auto const& visit) { journey.VisitChanges(visit); }, &Why);
    std::cout << "}\n";
}

void PrintAsText(RecordType const& type, WireRecord const& record, Style const& style)
{
    std::cout << Painted(std::string(type.name), Colour::Bold, style) << '\n';
    record.VisitValues(
        [&](Place const& place)
        {
            std::cout << "  " << Painted(PathText(place.path), Colour::Cyan, style) << " = ";
            PrintValue(std::cout, *place.before);
            std::cout << '\n';
        });
}

/// Which of two records has a value that differs.
std::string Side(Place const& place)
{
    return !place.after ? "only in A" : !place.before ? "only in B" : "in both";
}

/// A key that a path has only the start of; else empty.
std::string_view LongKey(Step const& step)
{
    auto const* const key = std::get_if<Records::Key>(&step);
    auto const* const text = key == nullptr ? nullptr : std::get_if<Records::WireText>(&key->value);
    return text == nullptr || text->bytes.size() <= MaxKeySize ? std::string_view() : text->bytes;
}

void PrintAsJson(RecordType const& type, WireRecord const& record)
{
    std::cout << R"({"record": ")" << type.name << "\",\n\"values\": ";
    JsonArray values;
    std::vector<char const*> wholeKeys; // of each step; where the key that was printed last begins
    record.VisitValues(
        [&](Place const& place)
        {
            wholeKeys.resize(place.path.size());
            for (std::size_t step = 0; step < place.path.size(); ++step)
            {
                auto const key = LongKey(place.path[step]);
                if (std::exchange(wholeKeys[step], key.data()) == key.data() || key.empty()) continue;
                values.Next();
                PrintJsonPath(place.path.first(step + 1));
                std::cout << R"(,"key":)";
                PrintJson(std::cout, key);
                std::cout << '}';
            }
            values.Next();
            PrintJsonPath(place.path);
            std::cout << R"(,"value":)";
            PrintJsonValue(std::cout, place.before);
            std::cout << '}';
        });
    values.End();
    std::cout << "}\n";
}

/// The limits of what the tool itself has written.
Limits AnySize(Limits limits)
{
    limits.bytes = std::numeric_limits<std::int32_t>::max();
    return limits;
}

/// Notes what the record loses in the protocol in which `bytes` have it: Thrift's JSON reader drops zero bytes.
void NoteLosses(Message const& message, std::string_view const bytes, Protocol const protocol, std::string const& name)
{
    Message const back(bytes, protocol, message.Type(), AnySize(message.Bounds()));
    if (std::ranges::equal(back.Bytes(), message.Bytes())) return;

    std::size_t lost = 0;
    std::string first;
    Decode(message).record->VisitValues(*Decode(back).record, FieldSet::Read,
                                        [&](Place const& place)
                                        {
                                            if (place.before == place.after || lost++ > 0) return;
                                            first = PathText(place.path);
                                        });
    if (lost > 0)
        Report("note: " + name + ": " + std::string(Name(protocol)) + " does not keep this record; " +
               std::to_string(lost) + " of its values read back different, such as " + first);
}

} // namespace

void List(Style const& style)
{
    if (!style.json)
    {
        for (auto const& type : RecordTypes())
            std::cout << std::left << std::setw(42) << type.name << std::setw(11) << type.group << Directions(type)
                      << '\n';
        return;
    }

    JsonArray types;
    for (auto const& type : RecordTypes())
    {
        types.Next();
        std::cout << R"({"name":")" << type.name << R"(","namespace":")" << type.group << R"(","toDomain":)"
                  << (type.toDomain ? "true" : "false") << R"(,"toWire":)" << (type.toWire ? "true" : "false") << '}';
    }
    types.End();
    std::cout << '\n';
}

void GuessTypes(Source const& source, std::span<Protocol const> const protocols, Style const& style)
{
    auto const guesses = GuessRecords(source, protocols);
    if (!style.json)
    {
        Table table(style);
        auto const cells = [](Guess const& guess) -> Table::Cells
        {
            return {std::string(guess.type->name), std::string(Name(guess.protocol)), std::to_string(guess.values),
                    std::to_string(guess.skippedFields)};
        };
        Table::Cells const titles{"record", "protocol", "values", "skipped fields"};
        table.Measure(titles);
        for (auto const& guess : guesses) table.Measure(cells(guess));
        table.Print(titles, Colour::Bold);
        for (auto const& guess : guesses)
            table.Print(cells(guess), guess.skippedFields == 0 ? Colour::Green : Colour::None);
        return;
    }

    JsonArray types;
    for (auto const& guess : guesses)
    {
        types.Next();
        std::cout << R"({"record":")" << guess.type->name << R"(","protocol":")" << Name(guess.protocol)
                  << R"(","values":)" << guess.values << R"(,"skippedFields":)" << guess.skippedFields << '}';
    }
    types.End();
    std::cout << '\n';
}

void Print(Source const& source, Style const& style)
{
    auto const& type = FindRecordType(source.record);
    ForEachRecord(source, type,
                  [&](Message const& message, std::string const& name)
                  {
                      auto const record = ReadRecord(message, name);
                      if (style.json)
                          PrintAsJson(type, *record);
                      else
                          PrintAsText(type, *record, style);
                  });
}

ExitStatus Convert(Source source, Target const& target, Style const& style)
{
    auto const& type = FindRecordType(source.record);
    if (!type.ConvertsBothWays())
        throw Failure(std::string(type.name) +
                      " has no converters in both directions; talvo-wire list shows which have");

    // The domain object takes about as much as the record.
    source.limits.memory /= 2;
    source.limits.memoryPerByte /= 2;
    auto status = ExitStatus::Done;
    std::string written;
    ForEachRecord(source, type,
                  [&](Message const& message, std::string const& name)
                  {
                      auto const journey = Travel(message, name);
                      if (style.json)
                          PrintAsJson(type, journey);
                      else
                          PrintAsText(journey, style);
                      ReportFailures(type, journey);
                      if (journey.after == nullptr)
                          status = ExitStatus::ConversionFailed;
                      else if (!target.path.empty())
                          written += Encode(*journey.after, target.protocol);
                  });
    if (status == ExitStatus::Done && !target.path.empty()) WriteFile(target.path, written);
    return status;
}

ExitStatus Diff(Source source, std::string const& otherPath, Style const& style)
{
    auto const& type = FindRecordType(source.record);
    source.limits.memory /= 2; // of each of the two
    auto other = source;
    other.path = otherPath;
    auto status = ExitStatus::Done;
    std::unique_ptr<WireRecord> left;
    ForEachRecord(source, type,
                  [&](Message const& message, std::string const& name) { left = ReadRecord(message, name); });
    ForEachRecord(other, type,
                  [&](Message const& message, std::string const& name)
                  {
                      auto const right = ReadRecord(message, name);
                      auto const visitAll = [&](auto const& visit)
                      {
                          left->VisitValues(*right, FieldSet::Read,
                                            [&](Place const& place)
                                            {
                                                if (place.before != place.after) visit(place);
                                            });
                      };
                      visitAll([&](Place const&) { status = ExitStatus::Different; });
                      if (style.json)
                      {
                          std::cout << R"({"record": ")" << type.name << "\",\n\"changes\": ";
                          PrintJsonChanges(visitAll, &Side);
                          std::cout << "}\n";
                      }
                      else if (status == ExitStatus::Different)
                          PrintChanges({"path", "A", "B", "where"}, visitAll, &Side, style);
                  });
    return status;
}

void EncodeJson(Source const& source, Target const& target)
{
    auto const file = InputName(source.path);
    auto text = ReadFile(source.path, source.limits.bytes);
    if (text.size() > source.limits.bytes) throw Failure(file + ": has more bytes than --max-bytes allows");
    if (text.empty()) throw Failure(file + ": holds no JSON: it is empty");

    std::istringstream json(std::move(text));
    std::string written;
    for (std::size_t index = 0; !(json >> std::ws).eof(); ++index)
    {
        auto const name = index == 0 ? file : file + ", record " + std::to_string(index);
        Naming(name,
               [&]
               {
                   auto record = ReadJsonRecord(json);
                   if (target.protocol != Protocol::Binary)
                       record.bytes =
                           Transcode(Message(record.bytes, Protocol::Binary, *record.type, AnySize(source.limits)),
                                     target.protocol);
                   written = written.empty() ? std::move(record.bytes) : std::move(written) + record.bytes;
               });
    }
    WriteFile(target.path, written);
}

void Transcode(Source const& source, Target const& target)
{
    auto const& type = FindRecordType(source.record);
    std::string written;
    ForEachRecord(source, type,
                  [&](Message const& message, std::string const& name)
                  {
                      Decode(message);
                      auto bytes = Transcode(message, target.protocol);
                      NoteLosses(message, bytes, target.protocol, name);
                      written = written.empty() ? std::move(bytes) : std::move(written) + bytes;
                  });
    WriteFile(target.path, written);
}

} // namespace Talvo::Tools

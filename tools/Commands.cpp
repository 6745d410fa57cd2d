#include "tools/Commands.h"

#include "tools/Failure.h"
#include "tools/FieldList.h"
#include "tools/Files.h"
#include "tools/RecordTypes.h"

#include <iomanip>
#include <iostream>
#include <utility>

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
    auto const bytes = ReadFile(source.path);
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
    auto decoded = Load(source, [&](std::string const& bytes) { return Decode(bytes, source.protocol, type); });
    if (decoded.skippedFields > 0)
        std::cerr << "talvo-wire: note: " << FileName(source) << " holds " << decoded.skippedFields
                  << " fields that the record does not have; they were skipped\n";
    return decoded;
}

/// Prints what one direction said; false if it failed.
bool Report(RecordType const& type, char const* direction, Common::Serialization::ConversionResult const& result)
{
    std::cout << direction << (result.success ? ": success\n" : ": failure\n");
    if (!result.success)
        std::cerr << "talvo-wire: " << type.name << ' ' << direction << " failed: " << result.message << '\n';
    return result.success;
}

/// Tells the values that would end the process inside a converter; false if there is any.
bool ReportHazards(RecordType const& type, WireRecord const& record)
{
    auto const hazards = type.findHazards(record);
    for (auto const& hazard : hazards)
        std::cerr << "talvo-wire: " << type.name << " is not converted: " << hazard.path
                  << " would end the process: " << hazard.reason << '\n';
    return hazards.empty();
}

/// What became of the values of a record on a round trip.
struct Tally
{
    std::size_t kept = 0;
    std::size_t changed = 0;
    std::size_t gone = 0;
    std::size_t added = 0;
};

Tally PrintChanges(FieldList const& before, FieldList const& after)
{
    Tally tally;
    for (auto const& change : Compare(before, after))
    {
        if (!change.after)
        {
            ++tally.gone;
            std::cout << "gone     " << change.path << ": " << *change.before << '\n';
        }
        else if (!change.before)
        {
            ++tally.added;
            std::cout << "added    " << change.path << ": " << *change.after << '\n';
        }
        else
        {
            ++tally.changed;
            std::cout << "changed  " << change.path << ": " << *change.before << " -> " << *change.after << '\n';
        }
    }
    tally.kept = before.size() - tally.changed - tally.gone;
    return tally;
}

} // namespace

void List()
{
    for (auto const& type : RecordTypes())
        std::cout << std::left << std::setw(42) << type.name << std::setw(11) << type.group << Directions(type) << '\n';
}

void Print(Source const& source)
{
    auto const& type = FindRecordType(source.record);
    auto const decoded = LoadRecord(source, type);
    std::cout << type.name << '\n';
    for (auto const& field : ListFields(decoded)) std::cout << "  " << field.path << " = " << field.value << '\n';
}

ExitStatus Convert(Source const& source, Target const& target)
{
    auto const& type = FindRecordType(source.record);
    if (type.throughDomain == nullptr)
        throw Failure(std::string(type.name) +
                      " has no converters in both directions; talvo-wire list tells which have");

    auto const decoded = LoadRecord(source, type);
    if (!ReportHazards(type, *decoded.record)) return ExitStatus::ConversionFailed;
    auto const trip = type.throughDomain(*decoded.record);
    if (!Report(type, "wire to domain", trip.toDomain)) return ExitStatus::ConversionFailed;
    if (!Report(type, "domain to wire", *trip.toWire)) return ExitStatus::ConversionFailed;

    auto const tally = PrintChanges(ListFields(decoded), ListFields(*trip.record));
    std::cout << "values: " << tally.kept << " kept, " << tally.changed << " changed, " << tally.gone << " gone, "
              << tally.added << " added\n";

    if (!target.path.empty()) WriteFile(target.path, Encode(*trip.record, target.protocol));
    return ExitStatus::Done;
}

void Transcode(Source const& source, Target const& target)
{
    auto const& type = FindRecordType(source.record);
    auto const [before, bytes] = Load(source,
                                      [&](std::string const& read)
                                      {
                                          return std::pair(ListFields(Decode(read, source.protocol, type)),
                                                           Transcode(read, source.protocol, type, target.protocol));
                                      });
    WriteFile(target.path, bytes);

    // Thrift's JSON reader drops zero bytes, so not every record comes back from it.
    auto const lost = Compare(before, ListFields(Decode(bytes, target.protocol, type)));
    if (!lost.empty())
        std::cerr << "talvo-wire: note: " << Name(target.protocol) << " does not keep this record; " << lost.size()
                  << " of its values read back different, such as " << lost.front().path << '\n';
}

} // namespace Talvo::Tools

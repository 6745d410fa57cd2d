#include "tools/Commands.h"

#include "tools/Failure.h"
#include "tools/FieldList.h"
#include "tools/Files.h"
#include "tools/RecordTypes.h"

#include <iomanip>
#include <iostream>

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

/// Reads and decodes; a failure names the file.
std::unique_ptr<WireRecord> Load(Source const& source, RecordType const& type)
{
    auto const bytes = ReadFile(source.path);
    auto const file = source.path == "-" ? "standard input" : source.path;
    try
    {
        auto decoded = Decode(bytes, source.protocol, type);
        if (decoded.skippedFields > 0)
            std::cerr << "talvo-wire: note: " << file << " holds " << decoded.skippedFields << " fields that a "
                      << type.name << " does not have; they were skipped\n";
        return std::move(decoded.record);
    }
    catch (Failure const& failure)
    {
        throw Failure(file + ": " + failure.what());
    }
}

/// Prints what one direction said; false if it failed.
bool Report(RecordType const& type, char const* direction, Common::Serialization::ConversionResult const& result)
{
    std::cout << direction << (result.success ? ": success\n" : ": failure\n");
    if (!result.success)
        std::cerr << "talvo-wire: " << type.name << ' ' << direction << " failed: " << result.message << '\n';
    return result.success;
}

void PrintChange(FieldChange const& change)
{
    if (!change.after)
        std::cout << "gone     " << change.path << ": " << *change.before << '\n';
    else if (!change.before)
        std::cout << "added    " << change.path << ": " << *change.after << '\n';
    else
        std::cout << "changed  " << change.path << ": " << *change.before << " -> " << *change.after << '\n';
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
    auto const record = Load(source, type);
    std::cout << type.name << '\n';
    for (auto const& field : ListFields(*record)) std::cout << "  " << field.path << " = " << field.value << '\n';
}

ExitStatus Convert(Source const& source, Target const& target)
{
    auto const& type = FindRecordType(source.record);
    if (type.throughDomain == nullptr)
        throw Failure(std::string(type.name) +
                      " has no converters in both directions; talvo-wire list tells which have");

    auto const record = Load(source, type);
    auto const trip = type.throughDomain(*record);
    if (!Report(type, "wire to domain", trip.toDomain)) return ExitStatus::ConversionFailed;
    if (!Report(type, "domain to wire", *trip.toWire)) return ExitStatus::ConversionFailed;

    auto const before = ListFields(*record);
    auto const changes = Compare(before, ListFields(*trip.record));
    std::size_t kept = before.size();
    for (auto const& change : changes)
    {
        PrintChange(change);
        if (change.before) --kept;
    }
    std::cout << kept << " values unchanged, " << changes.size() << " not\n";

    if (!target.path.empty()) WriteFile(target.path, Encode(*trip.record, target.protocol));
    return ExitStatus::Done;
}

void Transcode(Source const& source, Target const& target)
{
    auto const& type = FindRecordType(source.record);
    auto const record = Load(source, type);
    auto const bytes = Encode(*record, target.protocol);
    WriteFile(target.path, bytes);

    // Thrift's JSON reader drops zero bytes, so that not every record survives it.
    auto const lost = Compare(ListFields(*record), ListFields(*Decode(bytes, target.protocol, type).record));
    if (!lost.empty())
        std::cerr << "talvo-wire: note: " << Name(target.protocol) << " does not keep this record: " << lost.size()
                  << " values read back different, the first is " << lost.front().path << '\n';
}

} // namespace Talvo::Tools

#include "tools/Capture.h"

#include "tools/Failure.h"
#include "tools/Files.h"
#include "tools/Progress.h"
#include "tools/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace Talvo::Tools
{

namespace
{

/// What is around each record of a file.
struct Layout
{
    bool isFramed;
    bool hasHeader;
};
constexpr std::array<Layout, 4> Layouts{{{false, false}, {false, true}, {true, false}, {true, true}}};

/// Bytes that may be records.
struct Bytes
{
    std::string_view bytes;
    Protocol protocol;
    Limits limits;
    bool all; ///< One or more records; else just one.
};

Piece Take(Bytes const& source, Layout const& layout)
{
    if (!layout.isFramed) return TakeRecord(source.bytes, source.protocol, source.limits, layout.hasHeader);
    auto rest = source.bytes;
    auto piece = TakeRecord(TakeFrame(rest), source.protocol, source.limits, layout.hasHeader);
    if (!piece.rest.empty())
        throw Failure(std::to_string(piece.rest.size()) + " more bytes follow the record in its frame");
    piece.rest = rest;
    return piece;
}

/// How far the records go that lie like that.
struct Walk
{
    Layout layout;
    std::size_t count = 0;
    std::size_t size = 0; ///< Of the bytes up to the end of the last record.
    std::string problem;  ///< Why they do not go to the end; empty if they do.
};

Walk WalkOf(Bytes source, Layout const& layout)
{
    Walk walk{layout, 0, 0, {}};
    auto const size = source.bytes.size();
    try
    {
        do
        {
            source.bytes = Take(source, layout).rest;
            ++walk.count;
            walk.size = size - source.bytes.size();
        } while (source.all && !source.bytes.empty());
        if (!source.bytes.empty()) walk.problem = std::to_string(source.bytes.size()) + " more bytes follow the record";
    }
    catch (Failure const& failure)
    {
        walk.problem = failure.what();
    }
    return walk;
}

/// The records as they lie; where no layout fits, the farthest that several go, or one as it is. One record is first taken as
/// it is, and several at last: the size of a frame begins with a zero, which alone is a record without fields.
Walk FindRecords(Bytes const& source, bool const framed)
{
    std::vector<Layout> layouts;
    for (auto const& layout : Layouts)
        if (layout.isFramed || !framed) layouts.insert(source.all ? layouts.begin() : layouts.end(), layout);

    auto best = WalkOf(source, layouts.front());
    for (auto layout = layouts.begin() + 1; layout != layouts.end() && !best.problem.empty(); ++layout)
    {
        auto walk = WalkOf(source, *layout);
        if (walk.problem.empty() || (source.all && walk.size >= best.size)) best = std::move(walk);
    }
    return best;
}

/// Adds what a record of that type has in these bytes, if they are one.
bool Adds(Guess& guess, std::string_view const record, Limits const& limits)
{
    try
    {
        auto const decoded = Decode(Message(record, guess.protocol, *guess.type, limits));
        decoded.record->VisitValues([&](Place const&) { ++guess.values; });
        guess.skippedFields += decoded.skippedFields;
        return true;
    }
    catch (Failure const&)
    {
        return false;
    }
}

/// Whether they are one record of that type, of which some fields are there.
bool Holds(Bytes const& source, RecordType const& type)
{
    auto const walk = FindRecords(source, false);
    if (!walk.problem.empty()) return false;
    try
    {
        auto const record = Take(source, walk.layout).record;
        bool isEmpty = true;
        Decode(Message(record, source.protocol, type, source.limits))
            .record->VisitValues([&](auto const&) { isEmpty = false; });
        return !isEmpty;
    }
    catch (Failure const&)
    {
        return false;
    }
}

/// What begins there, of which the rest is not there or not as it should be.
std::string Beginning(std::string_view const bytes)
{
    if (bytes.starts_with("\x80\x01") || bytes.starts_with("\x82\x21") || bytes.starts_with("\x82\x81"))
        return "a message header";
    static constexpr std::size_t SizeBytes = 4;
    if (bytes.size() <= SizeBytes || bytes[0] != 0) return {};
    std::size_t size = 0;
    for (char const byte : bytes.substr(0, SizeBytes)) size = size << 8U | static_cast<unsigned char>(byte);
    if (size <= bytes.size() - SizeBytes) return {};
    return "a frame of " + std::to_string(size) + " bytes, of which " + std::to_string(bytes.size() - SizeBytes) +
           " are there";
}

/// What else the bytes may be, such as a `type` in another protocol, and how they can be read; empty if that is unknown.
std::string Appearance(Bytes source, RecordType const* const type)
{
    auto const given = source.protocol;
    if (!std::exchange(source.all, true))
    {
        if (auto const walk = FindRecords(source, false); walk.problem.empty())
            return walk.count == 1 ? "a record without a frame"
                                   : std::to_string(walk.count) + " records; --all reads them";
    }
    source.all = false;
    for (auto const protocol : AllProtocols)
    {
        source.protocol = protocol;
        if (protocol != given && type != nullptr && Holds(source, *type))
            return "a " + std::string(type->name) + " in the " + std::string(Name(protocol)) + " protocol";
    }
    if (auto const text = TextKind(source.bytes); !text.empty()) return std::string(text);
    return Beginning(source.bytes);
}

/// Where the records end that lie like that, and what the bytes look like instead.
Failure NoRecords(Bytes const& source, RecordType const& type, Walk const& walk)
{
    auto reason = walk.problem;
    if (source.all && walk.count > 0)
        reason += ", at byte " + std::to_string(walk.size) + " after " + std::to_string(walk.count) + " records";
    if (auto const appearance = Appearance(source, &type); !appearance.empty())
        reason += "; it looks like " + appearance;
    return Refusal(type, source.protocol, reason);
}

/// Notes what is around the records without having been asked for.
void NoteLayout(Source const& source, Walk const& walk, Piece const& first)
{
    std::string around;
    if (walk.layout.isFramed && !source.framed) around = source.all ? " in frames" : " in a frame";
    if (walk.layout.hasHeader)
    {
        around += around.empty() ? " after " : ", after ";
        around += (source.all ? "message headers, the first that of " : "the header of ") + first.header;
    }
    if (around.empty()) return;
    Report("note: " + InputName(source.path) + " holds " +
           (source.all ? std::to_string(walk.count) + " records" : std::string("the record")) + around);
}

std::string ReadBytes(Source const& source)
{
    auto text = ReadFile(source.path, source.limits.bytes);
    return Naming(InputName(source.path),
                  [&]
                  {
                      if (text.size() > source.limits.bytes)
                          throw Failure("has more than the " + std::to_string(source.limits.bytes) +
                                        " bytes of --max-bytes");
                      return DecodeText(std::move(text), source.encoding);
                  });
}

/// Calls use(record, name) for each record of the bytes, where `walk` found them.
void ForEachPiece(Source const& source, Bytes rest, Walk const& walk, auto const& use)
{
    auto const file = InputName(source.path);
    for (std::size_t index = 0; index < walk.count; ++index)
    {
        auto const piece = Take(rest, walk.layout);
        rest.bytes = piece.rest;
        if (index == 0) NoteLayout(source, walk, piece);
        auto const name = source.all ? file + ", record " + std::to_string(index) : file;
        Naming(name, [&] { use(piece.record, name); });
    }
}

} // namespace

void ForEachRecord(Source const& source, RecordType const& type, RecordUse const& use)
{
    auto const text = ReadBytes(source);
    Bytes const bytes{text, source.protocol, source.limits, source.all};
    auto const walk = FindRecords(bytes, source.framed);
    if (!walk.problem.empty()) Naming(InputName(source.path), [&]() { throw NoRecords(bytes, type, walk); });
    Progress progress(text.size());
    ForEachPiece(source, bytes, walk,
                 [&](std::string_view const record, std::string const& name)
                 {
                     use(Message(record, source.protocol, type, source.limits), name);
                     progress.Add(record.size());
                 });
}

std::vector<Guess> GuessRecords(Source const& source, std::span<Protocol const> const protocols)
{
    auto const text = ReadBytes(source);
    std::vector<Guess> guesses;
    for (auto const protocol : protocols)
    {
        Bytes const bytes{text, protocol, source.limits, source.all};
        auto const walk = FindRecords(bytes, source.framed);
        if (!walk.problem.empty()) continue;
        std::vector<Guess> fitting;
        for (auto const& type : RecordTypes()) fitting.push_back({&type, protocol, 0, 0});
        ForEachPiece(source, bytes, walk,
                     [&](std::string_view const record, std::string const&)
                     { std::erase_if(fitting, [&](Guess& guess) { return !Adds(guess, record, source.limits); }); });
        guesses.insert(guesses.end(), fitting.begin(), fitting.end());
    }
    if (guesses.empty())
    {
        auto const appearance = Appearance({text, protocols.front(), source.limits, source.all}, nullptr);
        throw Failure(InputName(source.path) + ": no record fits its bytes" +
                      (appearance.empty() ? "" : "; it looks like " + appearance));
    }
    std::ranges::stable_sort(
        guesses, [](Guess const& left, Guess const& right)
        { return std::pair(left.skippedFields, right.values) < std::pair(right.skippedFields, left.values); });
    return guesses;
}

} // namespace Talvo::Tools

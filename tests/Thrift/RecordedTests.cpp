// Compares conversions of all records with two text files in this folder.
//
// sent-records.txt has the written form of each record that converts to the wire. The domain objects are new, full,
// wide (with numbers that need all their bytes, if such a record converts), bare (received from as few fields as
// possible), and for some records built by hand.
//
// spoiled-records.txt has what full records with one spoiled value leave in a used domain object, as it is written to
// the wire afterwards.

#include "tests/Thrift/BuiltRecords.h"
#include "tests/Thrift/Samples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Records;

/// The written records by the headings of their blocks.
using Blocks = std::map<std::string, View>;

constexpr std::size_t LineWidth = 120;

bool IsEmpty(View const& view)
{
    auto const isEmpty = [](Part const& part) { return !part.isSet && IsEmpty(part.view); };
    return view.kind == View::Kind::Record ? std::ranges::all_of(view.parts, isEmpty)
                                           : view.text == "0" || view.text == "false" || view.text == "\"\"";
}

/// Returns a value with its parts in one line.
std::string Inline(View const& view)
{
    if (view.kind == View::Kind::Record && IsEmpty(view)) return view.text + ", empty";
    if (view.parts.empty()) return view.text;
    std::string text;
    for (auto const& part : view.parts)
    {
        text += text.empty() ? "" : ", ";
        if (view.kind == View::Kind::Record) text += part.label + (part.isSet ? " = " : " ? ");
        text += Inline(part.view);
    }
    return view.text + (view.kind == View::Kind::Record ? " (" + text + ')' : " [" + text + ']');
}

void AddLines(std::vector<std::string>& lines, View const& view, std::string const& indentation, Blocks const& blocks);

void AddPart(std::vector<std::string>& lines, Part const& part, std::string const& indentation, Blocks const& blocks)
{
    auto const line = indentation + part.label + (part.isSet ? " = " : " ? ");
    std::optional<std::vector<std::string>> shortest;
    auto const offer = [&shortest](std::vector<std::string> offered)
    {
        if (!shortest || offered.size() < shortest->size()) shortest = std::move(offered);
    };
    for (auto const* const state : {", new", ", full", ", wide", ", built"})
    {
        auto const block = blocks.find(part.view.text + state);
        if (part.view.kind != View::Kind::Record || block == blocks.end()) continue;
        std::vector<std::string> differing{line + block->first};
        for (std::size_t i = 0; i < part.view.parts.size(); ++i)
            if (part.view.parts[i] != block->second.parts[i])
                AddPart(differing, part.view.parts[i], indentation + "  ", blocks);
        if (differing.size() > 1) differing.front() += ", but";
        offer(std::move(differing));
    }
    if (auto const text = line + Inline(part.view); text.size() <= LineWidth && (!shortest || shortest->size() > 1))
        offer({text});
    else if (!shortest)
    {
        offer({line + part.view.text});
        AddLines(*shortest, part.view, indentation + "  ", blocks);
    }
    lines.insert(lines.end(), shortest->begin(), shortest->end());
}

void AddLines(std::vector<std::string>& lines, View const& view, std::string const& indentation, Blocks const& blocks)
{
    for (auto const& part : view.parts) AddPart(lines, part, indentation, blocks);
}

bool Converts(RecordType const& type, WireRecord const& record)
{
    auto const domain = type.makeDomain(record);
    return type.convertToDomain(record, *domain, Form::Checked).success;
}

std::set<int> IdsOf(View const& view)
{
    std::set<int> ids;
    for (auto const& part : view.parts) ids.insert(std::stoi(part.label));
    return ids;
}

std::set<int> Without(std::set<int> ids, int const id)
{
    ids.erase(id);
    return ids;
}

/// Returns the domain object that is received from the fields without which a full record does not convert, and from
/// one more field if the conversion needs one.
std::unique_ptr<DomainObject> BareDomain(RecordType const& type)
{
    auto const full = FullRecord(type);
    auto const ids = IdsOf(full->Fields());
    auto const received = [&type, make = PartsOf(type, *full)](std::set<int> const& some)
    {
        auto const record = make(some);
        return record != nullptr && Converts(type, *record) ? Received(type, *record) : nullptr;
    };
    auto needed = ids;
    for (auto const id : ids)
        if (received(Without(ids, id)) != nullptr) needed.erase(id);
    auto domain = received(needed);
    for (auto id = ids.begin(); domain == nullptr; ++id)
    {
        auto more = needed;
        more.insert(*id);
        domain = received(more);
    }
    return domain;
}

/// Returns the view that `make` makes, with generated identifiers hidden.
View Stable(auto const& make)
{
    auto view = make();
    auto const hide = [](auto const& self, View& shown, View const& again) -> void
    {
        if (shown.kind == View::Kind::Text && shown.text != again.text) shown.text = "generated";
        for (std::size_t i = 0; i < shown.parts.size(); ++i) self(self, shown.parts[i].view, again.parts.at(i).view);
    };
    hide(hide, view, make());
    return view;
}

/// Returns the record that is written from the result of `make`.
View SentOf(RecordType const& type, auto const& make)
{
    return Stable([&] { return Sent(type, *make())->Fields(); });
}

Blocks const& AllBlocks()
{
    static auto const all = []
    {
        auto blocks = BuiltRecords();
        for (auto const& type : RecordTypes())
        {
            if (!type.toWire) continue;
            std::string const name(type.name);
            blocks[name + ", new"] = SentOf(type, [&type] { return type.makeDomain(*type.make()); });
            if (!type.toDomain) continue;
            blocks[name + ", full"] = SentOf(type, [&type] { return FullDomain(type); });
            if (auto const wide = Filled(type, RecordFiller::Wide()); Converts(type, *wide))
                blocks[name + ", wide"] = SentOf(type, [&] { return Received(type, *wide); });
            blocks[name + ", bare"] = SentOf(type, [&type] { return BareDomain(type); });
        }
        return blocks;
    }();
    return all;
}

TEST(RecordedConversions, ToTheWireMatch)
{
    auto const& blocks = AllBlocks();
    std::string text;
    for (auto const& [heading, view] : blocks)
    {
        std::vector<std::string> lines;
        if (heading.ends_with(", bare") || heading.ends_with("otherwise"))
            AddPart(lines, {heading, true, view}, "", blocks);
        else
        {
            lines.push_back(heading);
            AddLines(lines, view, "  ", blocks);
        }
        for (auto const& line : lines) text += line + '\n';
        text += '\n';
    }
    ExpectRecorded(text, "sent-records.txt");
}

bool HasConverter(std::string const& name)
{
    return std::ranges::any_of(RecordTypes(), [&name](auto const& type) { return type.toDomain && type.name == name; });
}

/// Calls `visit(path, view, isOwn)` for each value except those in keys and sets. The path is such as
/// `clips[0].oldClip`. `isOwn` is true for values that the converter of the outermost record converts: those that are
/// not inside a nested record with a converter of its own.
void ForEachOwn(View const& view, auto const& visit, std::string const& path = {}, bool const isOwn = true)
{
    for (auto const& [label, isSet, value] : view.parts)
    {
        if (label.starts_with("key") || label.starts_with('{')) continue;
        auto const inner =
            path + (path.empty() || label.starts_with('[') ? "" : ".") + label.substr(label.find(' ') + 1);
        visit(inner, value, isOwn);
        ForEachOwn(value, visit, inner, isOwn && !(value.kind == View::Kind::Record && HasConverter(value.text)));
    }
}

/// Adds lines for the parts that differ from `expected`. A part that is equal to that of `other` is not shown in full.
void AddChanges(std::vector<std::string>& lines, View const& view, View const& expected, View const& other,
                std::string const& otherName, std::string const& indentation)
{
    std::string same;
    for (std::size_t i = 0; i < view.parts.size(); ++i)
    {
        auto const& part = view.parts[i];
        auto const partOf = [i](View const& whole) { return i < whole.parts.size() ? whole.parts[i] : Part{}; };
        if (part == partOf(expected)) continue;
        if (part == partOf(other))
        {
            same += (same.empty() ? "" : ", ") + part.label;
            continue;
        }
        std::vector<std::string> whole;
        AddPart(whole, part, indentation, AllBlocks());
        std::vector<std::string> changes{indentation + part.label + (part.isSet ? "" : " without its flag")};
        if (part.view.kind == View::Kind::Container) changes.front() += ", now " + part.view.text;
        AddChanges(changes, part.view, partOf(expected).view, partOf(other).view, otherName, indentation + "  ");
        auto const& shorter = changes.size() > 1 && changes.size() < whole.size() ? changes : whole;
        lines.insert(lines.end(), shorter.begin(), shorter.end());
    }
    if (!same.empty()) lines.push_back(indentation + otherName + ": " + same);
}

/// Returns the parts that differ from `expected`, or an empty text.
std::string Changes(View const& view, View const& expected, View const& other, std::string const& otherName)
{
    std::vector<std::string> lines;
    AddChanges(lines, view, expected, other, otherName, "    ");
    std::string text = lines.empty() ? "" : ", but";
    for (auto const& line : lines) text += '\n' + line;
    return text;
}

/// Converts spoiled records of one type into a used domain object.
class SpoiledRecords
{
public:
    explicit SpoiledRecords(RecordType const& type)
        : type_(type)
    {
    }

    /// Describes the outcomes of all spoiled records, in a line or more for each.
    std::string Outcomes()
    {
        auto const make = PartsOf(type_, *full_);
        auto const view = full_->Fields();
        auto const ids = IdsOf(view);
        if (auto const record = make({}); record != nullptr)
        {
            auto const none = Convert(*record);
            Add("no fields", none);
            for (auto const id : ids) record->CopyValue(*full_, id);
            if (auto const unflagged = Convert(*record); unflagged != none) Add("no flags", unflagged);
        }
        for (std::size_t i = 0; i < view.parts.size(); ++i)
        {
            auto const& label = view.parts[i].label;
            auto const record = make(Without(ids, std::stoi(label)));
            if (record == nullptr) continue; // a required field
            auto expected = read_;
            expected.view.parts[i] = before_.parts[i];
            auto const absent = Convert(*record);
            if (absent != expected) Add("without " + label, absent);
            record->CopyValue(*full_, std::stoi(label));
            if (auto const unflagged = Convert(*record); unflagged != absent)
                Add(label + " without its flag", unflagged);
        }
        std::size_t index = 0;
        std::vector<std::size_t> own;
        ForEachOwn(view,
                   [&](std::string const& path, View const& value, bool const isOwn)
                   {
                       if (value.kind != View::Kind::Record) return;
                       if (isOwn) AddNested(path, index);
                       if (isOwn) own.push_back(index);
                       ++index;
                   });
        auto const allEmpty = FullRecord(type_);
        for (auto last = own.rbegin(); last != own.rend(); ++last) allEmpty->Spoil(*last, true); // keeps those before
        if (own.size() > 1) Add("all records in it empty", Convert(*allEmpty));
        AddTexts();
        return text_;
    }

private:
    /// What is written from a used domain object after a conversion, and the message of the conversion.
    struct Outcome
    {
        View view;
        std::string message;

        bool operator==(Outcome const&) const = default;
    };

    Outcome Convert(WireRecord const& record) const
    {
        Outcome outcome;
        outcome.view = Stable(
            [&]
            {
                auto const domain = Received(type_, *used_);
                outcome.message = type_.convertToDomain(record, *domain, Form::Constant).message;
                return Sent(type_, *domain)->Fields();
            });
        return outcome;
    }

    /// Describes the message, and the domain object: what was there before, or what the full record leaves.
    std::string Described(Outcome const& outcome) const
    {
        auto const kept = Changes(outcome.view, before_, read_.view, "as read");
        auto const read = Changes(outcome.view, read_.view, before_, "as before");
        return (outcome.message.empty() ? "" : '"' + outcome.message + "\", ") +
               (kept.size() < read.size() ? "kept" + kept : "read" + read) + '\n';
    }

    void Add(std::string const& what, Outcome const& outcome) { text_ += "  " + what + ": " + Described(outcome); }

    void AddNested(std::string const& path, std::size_t const index)
    {
        auto const spoiled = [&](bool const isEmptied)
        {
            auto const record = FullRecord(type_);
            record->Spoil(index, isEmptied);
            return Convert(*record);
        };
        auto const emptied = spoiled(true);
        auto const unflagged = spoiled(false);
        Add(path + (emptied == unflagged ? " empty or without flags" : " empty"), emptied);
        if (emptied != unflagged) Add(path + " without flags", unflagged);
    }

    /// Adds the records with a malformed time code, with a day that does not exist, and with a time code of another
    /// rate, if they are rejected or the text is ignored. Those that end the process have tests of their own.
    void AddTexts()
    {
        auto filler = RecordFiller::Convertible(FullNumbers(type_.name));
        type_.make()->Read(filler);
        for (auto const value : filler.OwnValues())
            for (std::string const text : {"noon", "2023-02-29T00:00:00:00@25", "2023-02-28T00:00:00:00@30"})
            {
                auto spoiled = RecordFiller::Convertible(FullNumbers(type_.name));
                spoiled.Spoil(value, text, 0);
                auto const record = Filled(type_, std::move(spoiled));
                std::string spoiledPath;
                ForEachOwn(record->Fields(),
                           [&](std::string const& path, View const& view, bool const isOwn)
                           {
                               if (isOwn && view.text == '"' + text + '"') spoiledPath = path;
                           });
                auto const domain = type_.makeDomain(*record);
                auto const message = type_.convertToDomain(*record, *domain, Form::Checked).message;
                if (spoiledPath.empty() || message.find(": ") != std::string::npos) continue;
                auto const outcome = Convert(*record);
                auto const isRead =
                    outcome == read_ || Text(outcome.view).find('"' + text.substr(0, 4)) != std::string::npos;
                if (!message.empty() || !isRead) Add(spoiledPath + " \"" + text + '"', outcome);
            }
    }

    RecordType const& type_;
    std::unique_ptr<WireRecord> full_ = FullRecord(type_);
    std::unique_ptr<WireRecord> used_ = UsedRecord(type_);
    View before_ = SentOf(type_, [this] { return Received(type_, *used_); });
    Outcome read_ = Convert(*full_);
    std::string text_;
};

TEST(RecordedConversions, OfSpoiledRecordsMatch)
{
    std::string text =
        "What full records with one spoiled value leave in a used domain object: `read` is what the full "
        "record leaves,\n`before` what was there. A missing field, or one without its flag, is shown only if "
        "it does more than keep its value.\n\n";
    for (auto const& type : RecordTypes())
        if (type.ConvertsBothWays()) text += std::string(type.name) + '\n' + SpoiledRecords(type).Outcomes() + '\n';
    ExpectRecorded(text, "spoiled-records.txt");
}

} // namespace
} // namespace Talvo::Tests

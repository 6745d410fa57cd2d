// Compares the written form of each record that converts to the wire with sent-records.txt in this folder. The domain
// objects are new, full, wide (with numbers that need all their bytes, if such a record converts), bare (received from
// as few fields as possible), and for some records built by hand.

#include "tests/Thrift/BuiltRecords.h"
#include "tests/Thrift/Samples.h"

#include <gtest/gtest.h>
#include <thrift/protocol/TProtocolException.h>

#include <algorithm>
#include <cstdint>
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

/// Returns the domain object that is received from the fields of a full record with these ids, or null if they do not
/// convert.
std::unique_ptr<DomainObject> ReceivedFrom(RecordType const& type, std::set<std::int16_t> const& ids)
{
    auto record = type.make();
    auto filler =
        RecordFiller::Convertible(FullNumbers(type.name), [&ids](std::int16_t const id) { return ids.contains(id); });
    try
    {
        record->Read(filler);
    }
    catch (apache::thrift::protocol::TProtocolException const&)
    {
        return nullptr; // a required field is missing
    }
    return Converts(type, *record) ? Received(type, *record) : nullptr;
}

/// Returns the domain object that is received from the fields without which a full record does not convert, and from
/// one more field if the conversion needs one.
std::unique_ptr<DomainObject> BareDomain(RecordType const& type)
{
    auto filler = RecordFiller::Convertible(FullNumbers(type.name));
    type.make()->Read(filler);
    std::set<std::int16_t> needed;
    for (auto const id : filler.FieldIds())
    {
        auto others = filler.FieldIds();
        others.erase(id);
        if (ReceivedFrom(type, others) == nullptr) needed.insert(id);
    }
    auto domain = ReceivedFrom(type, needed);
    for (auto id = filler.FieldIds().begin(); domain == nullptr; ++id)
    {
        auto more = needed;
        more.insert(*id);
        domain = ReceivedFrom(type, more);
    }
    return domain;
}

/// Returns the record that is written from the result of `make`, with generated identifiers hidden.
View SentOf(RecordType const& type, auto const& make)
{
    auto view = Sent(type, *make())->Fields();
    auto const hide = [](auto const& self, View& shown, View const& again) -> void
    {
        if (shown.kind == View::Kind::Text && shown.text != again.text) shown.text = "generated";
        for (std::size_t i = 0; i < shown.parts.size(); ++i) self(self, shown.parts[i].view, again.parts.at(i).view);
    };
    hide(hide, view, Sent(type, *make())->Fields());
    return view;
}

TEST(SentRecords, MatchTheRecordedFile)
{
    Blocks blocks;
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

    blocks.merge(BuiltRecords());

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

} // namespace
} // namespace Talvo::Tests

// Checks the rules that every pair of converters must follow, over the registry of records. A row gives the reason for
// each exception.

#include "tests/Thrift/Samples.h"
#include "tests/Thrift/WireBytes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thrift/protocol/TProtocolException.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Records;
using apache::thrift::protocol::TProtocolException;

int IdOf(Part const& part)
{
    return std::stoi(part.label);
}

/// Makes records of the fields of a full record whose nested records lack their third field. PartsOf() would not do,
/// since its nested records have all fields.
Maker WithGaps(RecordType const& type)
{
    return [&type](std::set<int> const& ids) -> std::unique_ptr<WireRecord>
    {
        auto filler = RecordFiller::Convertible(FullNumbers(type.name), [&](auto id) { return ids.contains(id); });
        filler.LeaveOutInside(3);
        try
        {
            return Filled(type, filler);
        }
        catch (TProtocolException const&)
        {
            return nullptr;
        }
    };
}

/// A record that converts in both directions, and its variants for the tests.
struct Subject
{
    RecordType const& type;
    View view;
    std::set<int> ids;
    std::set<int> required;
    std::unique_ptr<WireRecord> used; ///< The record that a used destination was filled from.
    Maker full;
    Maker zeros; ///< All values are zero, with their flags set.
    Maker gaps;

    std::set<int> Without(int const id) const
    {
        auto others = ids;
        others.erase(id);
        return others;
    }

    /// The required fields and this one.
    std::set<int> Only(int const id) const
    {
        auto only = required;
        only.insert(id);
        return only;
    }
};

std::vector<Subject> const& Subjects()
{
    static auto const subjects = []
    {
        std::vector<Subject> all;
        for (auto const& type : RecordTypes())
        {
            if (!type.ConvertsBothWays()) continue;
            auto const full = FullRecord(type);
            Subject subject{type,
                            full->Fields(),
                            {},
                            {},
                            UsedRecord(type),
                            PartsOf(type, *full),
                            PartsOf(type, *Filled(type, RecordFiller::Zeros())),
                            WithGaps(type)};
            for (auto const& part : subject.view.parts) subject.ids.insert(IdOf(part));
            for (auto const id : subject.ids)
                if (subject.full(subject.Without(id)) == nullptr) subject.required.insert(id);
            all.push_back(std::move(subject));
        }
        return all;
    }();
    return subjects;
}

/// Converts the records in order into one domain object, and returns the record that is written from it. A failure
/// returns its message and no parts.
View Through(RecordType const& type, std::vector<WireRecord const*> const& records)
{
    auto const failure = [](std::string const& message) { return View{View::Kind::Text, message, {}}; };
    std::unique_ptr<DomainObject> domain;
    for (auto const* const record : records)
    {
        if (record == nullptr) return failure("a required field is missing");
        if (domain == nullptr) domain = type.makeDomain(*record);
        auto const result = type.convertToDomain(*record, *domain, Form::Checked);
        if (!result.success) return failure(result.message);
    }
    auto const sent = type.make();
    auto const result = type.convertToWire(*domain, *sent, Form::Constant);
    return result.success ? sent->Fields() : failure(result.message);
}

/// The violations of a rule: where, such as `Clip.42 inBoundTodTimecode`, and the difference.
using Found = std::multimap<std::string, std::string>;

/// Adds the places where the views differ.
void Compare(Found& found, std::string const& where, View const& actual, View const& expected)
{
    if (actual.parts.size() != expected.parts.size() || actual.parts.empty())
    {
        if (actual != expected) found.emplace(where, actual.text + " instead of " + expected.text);
        return;
    }
    for (std::size_t i = 0; i < actual.parts.size(); ++i)
    {
        if (actual.parts[i] == expected.parts[i]) continue;
        auto const lines = Lines({View::Kind::Record, "", {actual.parts[i]}});
        auto const others = Lines({View::Kind::Record, "", {expected.parts[i]}});
        auto const [line, other] = std::ranges::mismatch(lines, others);
        auto const& label = actual.parts[i].label;
        found.emplace(where.ends_with(label) ? where : where + " changes " + label,
                      (line == lines.end() ? "nothing" : *line) + " instead of " +
                          (other == others.end() ? "nothing" : *other));
    }
}

/// The ids of fields by record.
using Fields = std::map<std::string, std::set<int>, std::less<>>;

/// Parses `Record id id, Record id`.
Fields FieldsIn(std::string const& text)
{
    Fields fields;
    std::istringstream rows(text);
    for (std::string row; std::getline(rows, row, ',');)
    {
        std::istringstream words(row);
        std::string record;
        words >> record;
        for (int id = 0; words >> id;) fields[record].insert(id);
    }
    return fields;
}

bool Holds(Fields const& fields, RecordType const& type, int const id)
{
    auto const found = fields.find(type.name);
    return found != fields.end() && found->second.contains(id);
}

// Conversions to the domain that do more than set the fields whose flags are set.

// Fields from which a new command or reply is built, such as its identifier and its list, fields of records that
// replace the destination, and fields that become 0 when absent.
Fields const ReadRegardlessOfTheirFlags = FieldsIn(R"(
    ChainCommandParams 1 2, ChannelCommandReply 2, CreateAnglesGroupCommandParams 1 2 3,
    CreateClipsCommandParams 1 2, CreatePlaylistsCommandParams 1 2, DeleteClipsCommandParams 1 2,
    DeletePlaylistsCommandParams 1 2, DialCommandParams 1 2 3, FailureReply 2, GetAnglesGroupsCommandReply 1 2 3,
    GetChannelsCommandReply 1 2 3, GetClipsCommandReply 1 2 3, GetPlaylistsCommandParams 1,
    GetPlaylistsCommandReply 1 2 3, GetServersCommandParams 1, GetServersCommandReply 1 2,
    GetTrainsCommandReply 1 2 3, GoIdleCommandParams 1 2 3, LiveCommandParams 1 2, LoadClipsCommandParams 1 2,
    LoadSequencesCommandParams 1 2, PlayCommandParams 1 2 3 4, SetLoadBoundariesCommandParams 1 2,
    StartRecordingCommandParams 1 2, StepCommandParams 1 2 3, StopRecordingCommandParams 1 2,
    SyncCommandParams 1 3, UpdateClipsCommandParams 1 2, UpdatePlaylistsCommandParams 1 2,
    AnglesGroupCommandReply 3 4, AudioVideoTrack 1, OperationStatus 1 2, ServerInfo 1 2 3 4 5 6 7 8 9, Train 1 2 3 4 5,
    ClipDeletionFinishedEventArgs 3, MassClipDeletionFinishedEventArgs 3, MassClipUpdateFinishedEventArgs 3,
    PlayerStateChangedEventArgs 3, RecorderStateChangedEventArgs 3, RecordingRangesChangedEventArgs 1 2 3 4)");

Fields const Appended = FieldsIn(R"(
    AudioVideoTrack 1, ChainCommandParams 2, DialCommandParams 2, Element 10, GoIdleCommandParams 2,
    LiveCommandParams 2, LoadClipsCommandParams 2, LoadSequencesCommandParams 2, PlayCommandParams 2,
    SetLoadBoundariesCommandParams 2, StartRecordingCommandParams 2, StepCommandParams 2,
    StopRecordingCommandParams 2, SyncCommandParams 3, Tag 4)");

/// With this field the destination is rebuilt.
Fields const Rebuilding = FieldsIn("Essence 1, Tag 2");

/// Nested records that are converted into the nested object of the destination, which keeps the values that they lack.
std::set<std::string> const PatchedInside{
    "MultiviewerDataOverrides.1 playersData",
    "PlayerState.7 pgmOnAir",
    "PlayerState.8 previewOnAir",
    "Playlist.3 sequence",
    "PlayerStateChangedEventArgs.4 status",
    "RecorderStateChangedEventArgs.4 status",
};

/// Known exceptions to a rule, and their reason.
struct Departure
{
    std::string reason;
    std::set<std::string> where;
};

void ExpectOnly(Found const& found, std::vector<Departure> const& departures)
{
    std::set<std::string> known;
    for (auto const& departure : departures) known.insert(departure.where.begin(), departure.where.end());
    for (auto const& [where, what] : found)
        if (!known.contains(where)) ADD_FAILURE() << where << ": " << what;
    for (auto const& where : known) EXPECT_TRUE(found.contains(where)) << where << " is no longer an exception";
}

/// Returns `used` with the elements of `added` after its own. Elements of sets and maps are in the order of their keys,
/// and an existing key keeps its value.
View Append(View const& used, View const& added)
{
    View all{View::Kind::Container, "", {}};
    std::map<std::string, View> entries;
    for (auto const* const view : {&used, &added})
        for (std::size_t i = 0; i < view->parts.size(); ++i)
        {
            auto const& part = view->parts[i];
            auto const key = part.view.text + Text(part.view);
            if (part.label.starts_with("key"))
                entries.emplace(key, view->parts[++i].view);
            else if (part.label.starts_with("{"))
                entries.emplace(key, part.view);
            else
                entries[std::to_string(entries.size())] = part.view; // the order holds for up to ten elements
        }
    for (auto const& [key, view] : entries)
    {
        auto const label = '[' + std::to_string(all.parts.size()) + ']';
        all.parts.push_back({label, true, view});
    }
    all.text = std::to_string(all.parts.size());
    return all;
}

/// Returns a container without its keys, as Append() does.
View WithoutKeys(View view)
{
    return view.kind == View::Kind::Container ? Append({View::Kind::Container, "", {}}, view) : view;
}

std::string Name(Subject const& subject, int const id)
{
    auto const& parts = subject.view.parts;
    return std::string(subject.type.name) + '.' + std::ranges::find(parts, id, IdOf)->label;
}

/// Replaces the third fields of nested records with those of `used`, where the records are converted into the used
/// object.
void KeepGaps(View& record, View const& used)
{
    auto const keep = [](View& nested, View const& usedNested)
    {
        for (std::size_t i = 0; i < nested.parts.size(); ++i)
            if (nested.parts[i].label.starts_with("3 ")) nested.parts[i] = usedNested.parts[i];
        KeepGaps(nested, usedNested);
    };
    for (std::size_t i = 0; i < record.parts.size(); ++i)
    {
        auto& part = record.parts[i];
        if (!PatchedInside.contains(record.text + '.' + part.label)) continue;
        auto const& usedView = used.parts[i].view;
        if (part.view.kind == View::Kind::Record) keep(part.view, usedView);
        for (std::size_t j = 0; j < part.view.parts.size() && part.view.kind == View::Kind::Container; ++j)
            keep(part.view.parts[j].view, usedView.parts[j].view);
    }
}

bool Converts(Subject const& subject, Maker const& make, std::set<int> const& ids)
{
    return !Through(subject.type, {make(ids).get()}).parts.empty();
}

/// Returns the field with as few others as a conversion needs.
std::set<int> Smallest(Subject const& subject, Maker const& make, int const id)
{
    auto const only = subject.Only(id);
    if (Converts(subject, make, only)) return only;
    for (auto const other : subject.ids)
    {
        auto both = only;
        both.insert(other);
        if (Converts(subject, make, both)) return both;
    }
    return subject.ids;
}

/// Converts each field into a used domain object. The field must have the value that it has in a new one, and all
/// others must be unchanged.
void ExpectPatched(Maker Subject::*const make, std::vector<Departure> const& departures)
{
    Found found;
    for (auto const& subject : Subjects())
    {
        auto const& type = subject.type;
        auto const before = Through(type, {subject.used.get()});
        for (auto const id : subject.ids)
        {
            auto const there = Smallest(subject, subject.*make, id);
            auto const record = (subject.*make)(there);
            auto const alone = Through(type, {record.get()});
            auto expected = alone.parts.empty() ? alone : before;
            auto actual = Through(type, {subject.used.get(), record.get()});
            for (std::size_t i = 0; i < expected.parts.size(); ++i)
            {
                auto& part = expected.parts[i];
                auto const partId = IdOf(part);
                if (there.contains(partId) && Holds(Appended, type, partId))
                {
                    part.view = Append(part.view, alone.parts[i].view);
                    actual.parts.at(i).view = WithoutKeys(actual.parts.at(i).view);
                }
                else if (there.contains(partId) || Holds(ReadRegardlessOfTheirFlags, type, partId) ||
                         Holds(Rebuilding, type, id))
                    part = alone.parts[i];
            }
            if (make == &Subject::gaps) KeepGaps(expected, before);
            Compare(found, Name(subject, id), actual, expected);
        }
    }
    ExpectOnly(found, departures);
}

TEST(Duty, SetFieldReplacesTheValueOfAUsedDomainObject)
{
    ExpectPatched(&Subject::full,
                  {{"a new identifier each time", {"LiveCommandParams.1 commandGuid"}},
                   {"an unknown enumeration number is ignored", {"MultiviewerDataOverrides.1 playersData"}},
                   {"a rate needs its denominator", {"Sequence.14 playRateNumerator"}},
                   {"its tags are appended", {"AudioVideoElement.9 element"}}});
}

TEST(Duty, SetZeroReplacesTheValueOfAUsedDomainObject)
{
    ExpectPatched(
        &Subject::zeros,
        {{"a new identifier each time", {"LiveCommandParams.1 commandGuid"}},
         {"the destination decides the number of players", {"MultiviewerDataOverrides.1 playersData"}},
         {"a rate needs its denominator", {"Sequence.14 playRateNumerator"}},
         {"its tags are appended", {"AudioVideoElement.9 element"}},
         {"an empty list has no elements to replace", {"Clip.7 keywords", "Clip.8 userBits"}},
         {"an empty text is not a valid time code and is skipped",
          {"PlayerState.13 todPgmInTimecodeOnAir", "PlayerState.14 todPgmShortInTimecodeOnAir",
           "PlayerState.15 todPgmShortOutTimecodeOnAir", "PlayerState.16 todPgmOutTimecodeOnAir",
           "PlayerState.17 userPgmInTimecodeOnAir", "PlayerState.18 userPgmShortInTimecodeOnAir",
           "PlayerState.19 userPgmShortOutTimecodeOnAir", "PlayerState.20 userPgmOutTimecodeOnAir",
           "RecorderState.8 lastTodTimecode", "RecorderState.9 lastUserTimecode", "Playlist.3 sequence"}},
         {"the playlist is sent only after a success", {"PlaylistResultsItem.1 operationStatus changes 2 playlist"}},
         {"the remaining capacity is at most the total capacity",
          {"RecorderState.12 totalCapacity changes 11 remainingCapacity"}}});
}

TEST(Duty, NestedRecordReplacesTheValueOfAUsedDomainObject)
{
    ExpectPatched(&Subject::gaps, {{"a new identifier each time", {"LiveCommandParams.1 commandGuid"}},
                                   {"a rate needs its denominator", {"Sequence.14 playRateNumerator"}},
                                   {"its tags are appended", {"AudioVideoElement.9 element"}}});
}

TEST(Duty, RecordWithoutItsNecessaryFieldsIsRejected)
{
    std::string text = "Which fields of a full record do not convert alone, and without which it does not convert;\n"
                       "0 stands for no field at all.\n\n";
    for (auto const& subject : Subjects())
    {
        std::map<std::string, std::string> alone;
        std::map<std::string, std::string> without;
        auto const note = [&](std::map<std::string, std::string>& refused, std::set<int> const& ids, int const id)
        {
            auto const view = Through(subject.type, {subject.full(ids).get()});
            if (view.parts.empty()) refused[view.text] += ' ' + std::to_string(id);
        };
        note(alone, {}, 0);
        for (auto const id : subject.ids)
        {
            note(alone, subject.Only(id), id);
            note(without, subject.Without(id), id);
        }
        for (auto const& [message, ids] : alone)
            text += std::string(subject.type.name) + ": " + message + "\n  alone  " + ids + "\n  without" +
                    without[message] + '\n';
    }
    ExpectRecorded(text, "refused-records.txt");
}

// Conversions to the wire that do more than set values with their flags and append to containers.

/// Fields that are replaced as a whole when they are written.
std::set<std::string> const ReplacedOnTheWire{
    "AnglesGroup.2 angles",
    "AudioVideoElement.9 element",
    "Clip.7 keywords",
    "Playlist.1 audioVideoTrack",
    "MultiviewerDataOverrides.1 playersData",
};

/// Fields that are written without their flag.
std::set<std::string> const WrittenWithoutFlag{
    "DialCommandParams.3 velocity",
    "GoIdleCommandParams.3 setBlackScreen",
    "StepCommandParams.3 fieldCount",
    "UnknownCommandReply.1 commandType",
    "Speed.1 numerator",
    "Speed.2 denominator",
    "GetChannelsCommandReply.2 players",
    "GetChannelsCommandReply.3 recorders",
};

/// Fields whose flag is cleared when there is nothing to write.
std::set<std::string> const ClearedOnTheWire{
    "AudioVideoTrack.2 numberOfElements",
    "ClipResultsItem.2 clip",
    "GetPlaylistsCommandParams.3 idFilter",
    "PlaylistResultsItem.2 playlist",
    "Train.1 trainData",
    "PlayerDataOverrides.2 clipCreationIn",
    "PlayerDataOverrides.3 clipCreationOut",
    "PlayerDataOverrides.4 isFirstControlledMediaOutput",
    "PlayerDataOverrides.5 controlMode",
    "PlayerDataOverrides.6 programMode",
    "PlayerDataOverrides.7 isPostRollEnabled",
    "PlayerDataOverrides.8 message",
};

/// Changes `used` to the expected result of writing into it, where `sent` is the result of writing into a new record.
void WriteOver(View& used, View const& sent)
{
    for (std::size_t i = 0; i < used.parts.size(); ++i)
    {
        auto& part = used.parts[i];
        auto const& written = sent.parts[i];
        auto const label = used.text + '.' + part.label;
        auto const isWritten = written.isSet || WrittenWithoutFlag.contains(label);
        if (isWritten && ReplacedOnTheWire.contains(label))
            part.view = written.view;
        else if (isWritten && part.view.kind == View::Kind::Container)
            part.view = Append(part.view, written.view);
        else if (isWritten && part.view.kind != View::Kind::Record)
            part.view = written.view;
        else if (isWritten)
            WriteOver(part.view, written.view);
        part.isSet = written.isSet || (part.isSet && !ClearedOnTheWire.contains(label));
    }
}

View WithoutKeysInside(View view)
{
    if (view.kind == View::Kind::Record)
        for (auto& part : view.parts) part.view = WithoutKeysInside(part.view);
    return WithoutKeys(std::move(view));
}

TEST(Duty, UsedWireRecordIsOverwritten)
{
    Found found;
    for (auto const& type : RecordTypes())
    {
        if (!type.toWire) continue;
        std::vector<std::unique_ptr<DomainObject>> domains;
        domains.push_back(type.makeDomain(*type.make()));
        if (type.toDomain) domains.push_back(FullDomain(type));
        for (auto const& domain : domains)
        {
            auto const used = Filled(type, RecordFiller());
            auto expected = used->Fields();
            EXPECT_TRUE(type.convertToWire(*domain, *used, Form::Constant).success);
            auto const isReadOnce = type.name == "GetAnglesGroupsCommandReply" || type.name == "GetClipsCommandReply";
            auto const again = isReadOnce && domain != domains[0] ? FullDomain(type) : nullptr;
            WriteOver(expected, Sent(type, again != nullptr ? *again : *domain)->Fields());
            Compare(found, std::string(type.name), WithoutKeysInside(used->Fields()), WithoutKeysInside(expected));
        }
    }
    ExpectOnly(found, {});
}

TEST(Duty, BothFormsConvertAlikeAndKeepTheSource)
{
    Found found;
    for (auto const& subject : Subjects())
    {
        auto const& type = subject.type;
        std::string const name(type.name);
        auto const record = FullRecord(type);
        auto const before = record->Fields();
        auto const domain = type.makeDomain(*record);
        auto const result = type.convertToDomain(*record, *domain, Form::Movable);
        EXPECT_TRUE(result.success && result.message.empty()) << name;
        EXPECT_EQ(Text(record->Fields()), Text(before)) << name;

        auto const moved = type.make();
        auto const sent = type.convertToWire(*domain, *moved, Form::Movable);
        EXPECT_TRUE(sent.success && sent.message.empty()) << name;
        Compare(found, name, moved->Fields(), Sent(type, *FullDomain(type))->Fields());
        Compare(found, name + ", again", Sent(type, *domain)->Fields(), moved->Fields());
    }
    ExpectOnly(found, {{"the cursor of the reply is at its end",
                        {"GetAnglesGroupsCommandReply, again changes 3 groups",
                         "GetClipsCommandReply, again changes 3 clips"}}});
}

/// Converts a record into a used domain object. Returns the record that is written from it and the message of the
/// conversion.
std::pair<View, std::string> Patched(Subject const& subject, WireRecord const& record, Form const form)
{
    auto const& type = subject.type;
    auto const domain = Received(type, *subject.used);
    auto const result = type.convertToDomain(record, *domain, form);
    return {Sent(type, *domain)->Fields(), result.message};
}

TEST(Duty, BothFormsLeaveTheSameInAUsedDestination)
{
    Found found;
    for (auto const& subject : Subjects())
    {
        auto const& type = subject.type;
        for (auto const& ids : {subject.required, subject.ids})
            if (auto const record = subject.full(ids); record != nullptr)
            {
                auto const [constant, message] = Patched(subject, *record, Form::Constant);
                auto const [movable, sameMessage] = Patched(subject, *record, Form::Movable);
                EXPECT_EQ(message, sameMessage);
                Compare(found, std::string(type.name), movable, constant);
            }

        auto const domain = type.makeDomain(*type.make());
        auto const constant = Filled(type, RecordFiller());
        auto const movable = Filled(type, RecordFiller());
        EXPECT_TRUE(type.convertToWire(*domain, *constant, Form::Constant).success);
        EXPECT_TRUE(type.convertToWire(*domain, *movable, Form::Movable).success);
        Compare(found, std::string(type.name), movable->Fields(), constant->Fields());
    }
    ExpectOnly(found, {{"a new identifier each time", {"LiveCommandParams changes 1 commandGuid"}}});
}

TEST(Duty, ValuesRoundTripThroughTheBytesOfEachProtocol)
{
    Found found;
    for (auto const& subject : Subjects())
    {
        auto const& type = subject.type;
        std::string const where(type.name);
        auto const add = [&](std::unique_ptr<DomainObject> const& domain, auto const& sent)
        {
            for (auto const& protocol : Protocols())
            {
                if (protocol == Protocols()[2] && Text(sent->Fields()).find("\\x00") != std::string::npos)
                    continue; // Thrift's JSON loses NUL bytes
                auto const back = type.make();
                ReadBytes(WrittenBytes(*sent, *protocol), *protocol, *back);
                auto const received = type.makeDomain(*back);
                auto const result = type.convertToDomain(*back, *received, Form::Constant);
                if (!result.success)
                    found.emplace(where, result.message);
                else
                {
                    Compare(found, where, Sent(type, *received)->Fields(), sent->Fields());
                    if (type.equal != nullptr && !type.equal(*received, *domain)) found.emplace(where, "is not equal");
                }
            }
        };
        std::vector<std::unique_ptr<DomainObject>> domains;
        domains.push_back(type.makeDomain(*type.make()));
        domains.push_back(FullDomain(type));
        for (auto const id : subject.ids)
            domains.push_back(Received(type, *subject.full(Smallest(subject, subject.full, id))));
        for (auto const& domain : domains) add(domain, Sent(type, *domain));
    }
    ExpectOnly(found,
               {{"the internal result is not written", {"ClipCreationFailedEventArgs"}},
                {"the empty time code is written as digits and read as another time code", {"RecordingRange"}},
                {"the type of a channel is rebuilt", {"PlayerStateChangedEventArgs", "RecorderStateChangedEventArgs"}},
                {"the identifier is not written", {"SetMultiviewerDataCommandParams"}}});
}

bool DiffersInAnEnumeration(View const& left, View const& right)
{
    if (left.kind == View::Kind::Enumeration) return left.text != right.text;
    for (std::size_t i = 0; i < std::min(left.parts.size(), right.parts.size()); ++i)
        if (DiffersInAnEnumeration(left.parts[i].view, right.parts[i].view)) return true;
    return false;
}

TEST(Duty, UnknownEnumerationNumberIsReadAsZero)
{
    Found found;
    for (auto const& subject : Subjects())
    {
        auto const& type = subject.type;
        auto const numbers = FullNumbers(type.name);
        auto all = RecordFiller::Convertible(numbers);
        auto const full = type.make();
        full->Read(all);
        for (auto const value : all.OwnValues())
        {
            auto const spoiled = [&](std::int16_t const number)
            {
                auto filler = RecordFiller::Convertible(numbers);
                filler.Spoil(value, "", number);
                return Filled(type, std::move(filler));
            };
            auto const unknown = spoiled(12345);
            if (!DiffersInAnEnumeration(unknown->Fields(), full->Fields())) continue;
            Compare(found, std::string(type.name), Through(type, {subject.used.get(), unknown.get()}),
                    Through(type, {subject.used.get(), spoiled(0).get()}));
        }
    }
    ExpectOnly(found, {{"an unknown type is the last kind of relative boundary",
                        {"LoadBoundary changes 1 type", "LoadBoundary changes 2 specializedLoadBoundary",
                         "ChainCommandParams changes 4 inBoundary", "ChainCommandParams changes 5 outBoundary",
                         "SyncCommandParams changes 4 inBoundary", "SyncCommandParams changes 5 outBoundary",
                         "PlayerState changes 22 inBoundary", "PlayerState changes 23 outBoundary"}},
                       {"an unknown number is ignored",
                        {"PlayerDataOverrides changes 5 controlMode", "PlayerDataOverrides changes 6 programMode",
                         "MultiviewerDataOverrides changes 1 playersData",
                         "GetMultiviewerDataCommandReply changes 3 playersDataOverrides",
                         "SetMultiviewerDataCommandParams changes 2 playersDataOverrides"}},
                       {"an unknown number is 1", {"GetPlaylistsCommandParams changes 2 elementMode"}},
                       {"an unknown number is 2", {"GetServersCommandParams changes 2 serverRange"}}});
}

} // namespace
} // namespace Talvo::Tests

#include "Thrift/Version.h"
#include "records/RecordType.h"
#include "tests/tools/Tool.h"
#include "tools/Failure.h"
#include "tools/Protocols.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <tuple>

namespace
{

using testing::AllOf;
using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;
using namespace std::string_literals;

/// The directions of each record, by its name.
std::map<std::string, std::string> Listed()
{
    std::map<std::string, std::string> listed;
    std::istringstream lines(RunTool({"list"}).output);
    std::string name, group, directions;
    while (lines >> name >> group && std::getline(lines >> std::ws, directions))
        EXPECT_TRUE(listed.emplace(name, directions).second) << name << " is listed twice";
    return listed;
}

TEST(Tool, ListsEveryRecordOnceWithItsDirections)
{
    auto const listed = Listed();
    EXPECT_EQ(listed.size(), Talvo::Records::RecordTypes().size());
    EXPECT_EQ(listed.at("AsciiOrUtf16String"), "-");
    EXPECT_EQ(listed.at("ClipCommandEventArgs"), "both");
    EXPECT_EQ(listed.at("AnglesGroupCreationFailedEventArgs"), "to wire");
    EXPECT_EQ(listed.at("AnglesGroupUpdateEventArgs"), "-");
}

TEST(Tool, ReadsEverySampleAndWritesItInTheOtherProtocolByteForByte)
{
    std::map<std::string, std::string> const failures{
        {"clip-rate-mismatch", "In Bound TOD Timecode Rate inconsistent with Clip Rate"},
        {"clip-nothing-counts", "Clip is empty"},
    };
    auto const listed = Listed();
    std::ifstream samples(SamplePath("samples.txt"));
    std::string file, record;
    int count = 0;
    while (samples >> file >> record)
    {
        SCOPED_TRACE(file);
        ++count;
        auto const name = file.substr(0, file.find('.'));
        auto const protocol = file.substr(name.size() + 1);
        auto const other = protocol == "binary" ? "compact" : "binary";

        auto const printed = RunTool({"print", record, SamplePath(file), "-p", protocol});
        EXPECT_EQ(printed.status, 0);
        EXPECT_EQ(printed.output.substr(0, record.size() + 1), record + '\n');
        EXPECT_THAT(printed.errors, IsEmpty());
        EXPECT_EQ(Transcoded(record, Sample(file), protocol, other), Sample(name + '.' + other));

        auto const converted = RunTool({"convert", record, SamplePath(file), "-p", protocol});
        if (listed.at(record) != "both")
            ExpectRefused(converted, record + " has no converters in both directions");
        else if (failures.contains(name))
        {
            EXPECT_EQ(converted.status, 1);
            EXPECT_THAT(converted.output, "wire to domain: failure\n");
            EXPECT_THAT(converted.errors, OneLine(failures.at(name)));
        }
        else
        {
            EXPECT_EQ(converted.status, 0);
            EXPECT_THAT(converted.output, HasSubstr("wire to domain: success\ndomain to wire: success\n"));
            EXPECT_THAT(converted.errors, IsEmpty());
        }
    }
    EXPECT_GE(count, 40);
}

TEST(Tool, PrintsWhatTheFileHoldsAndNothingElse)
{
    auto const minimal = RunTool({"print", "Clip", SamplePath("clip-minimal.binary")});
    EXPECT_EQ(minimal.output, "Clip\n  umId = \"A1B2C3D4\"\n");

    // The last of these has an empty list, and a default text that is there although it is empty.
    std::pair<std::string, std::string> const lines[] = {
        {"LoadClipsCommandParams load-clips-command.binary",
         R"(  playersParameters["\x00\xff\x80TALVO-PEER-\x00 "].inBoundary.specializedLoadBoundary.absoluteLoadBoundary.timepoint = -1)"},
        {"AnglesGroup angles-group.binary",
         R"(  angles[3].clipId.value = "\x00\xff\x80TALVO-PEER-\x00\x02" (00ff8054414c564f2d504545522d0002))"},
        {"PlayCommandParams play-command.binary",
         R"(  players[1].value = "\x00\xff\x80TALVO-PEER-\x00\x16" (00ff8054414c564f2d504545522d0016))"},
        {"Train train.binary", R"(  recordingRanges[1].outBoundTimecode = "2024-06-15T18:00:00:00@50")"},
        {"Clip clip-two-essences.binary", "  isDual = true"},
        {"Clip clip-unknown-numbers.binary", "  camera = -1"},
        {"AnglesGroup angles-group.binary", "  angles[3].preferencialCamera = 1 (Primary)"},
        {"Clip clip-nothing-counts.binary", "  keywords = []"},
    };
    for (auto const& [arguments, line] : lines)
    {
        auto const space = arguments.find(' ');
        auto const outcome = RunTool({"print", arguments.substr(0, space), SamplePath(arguments.substr(space + 1))});
        EXPECT_THAT(outcome.output, HasSubstr('\n' + line + '\n')) << arguments;
    }

    // Every value of an entry repeats its key, which is cut.
    auto const key = std::string(70, 'k');
    auto const entry = RunTool({"print", "ChainCommandParams"},
                               "\x0d\0\2\x0c\x0c\0\0\0\1\x0b\0\1\0\0\0\x46"s + key + "\0\x0b\0\1\0\0\0\1v\0\0"s);
    EXPECT_EQ(entry.output, "ChainCommandParams\n  players[\"" + key.substr(6) + "...\" (70 bytes)].value = \"v\"\n");

    // Quotes and backslashes are told apart from the tool's own.
    auto const quoted = RunTool({"print", "Guid", "-p", "json"}, R"({"1":{"str":"a\"b\\x00"}})"
                                                                 "\n");
    EXPECT_EQ(quoted.output, "Guid\n  value = \"a\\\"b\\\\x00\"\n");
}

TEST(Tool, PrintsUtf16BesideItsFlagAndNothingThatATerminalObeys)
{
    auto const utf8 = [](std::u8string_view const text) { return std::string(text.begin(), text.end()); };
    // Code units, what they are in a locale with UTF-8, and in one without.
    std::tuple<std::u16string, std::string, std::string> const rows[] = {
        {u"Gr\u00fc\u00df \u6771", utf8(u8"Gr\u00fc\u00df \u6771"), R"(Gr\u00fc\u00df \u6771)"},
        {u"\U0001f3ac!", utf8(u8"\U0001f3ac!"), R"(\u{1f3ac}!)"},
        {u"\"\\", R"(\"\\)", R"(\"\\)"},
        {u"a\0b\0\0"s, R"(a\u0000b)", R"(a\u0000b)"},
        {u"\x1b[m\x9b\u202e\ufeff\uffff\ue000", R"(\u001b[m\u009b\u202e\ufeff\uffff\ue000)", ""},
        {u"\U000e0041\U0010ffff", R"(\u{e0041}\u{10ffff})", ""},
        {{0xD83C, u'x', 0xDFAC, 0xD83C}, R"(\ud83cx\udfac\ud83c)", ""},
        {u"", "", ""},
    };
    auto const file = TemporaryPath("utf16");
    auto const print = [&](std::string const& locale)
    { return RunShell("LC_ALL=" + locale + " talvo-wire print AsciiOrUtf16String " + file).output; };
    auto const record = [](std::string const& bytes, char const flag)
    { return "\x0b\0\1"s + Number(bytes.size()) + bytes + "\2\0\2"s + flag + '\0'; };
    for (auto const& [units, inUtf8, inAscii] : rows)
    {
        std::string bytes;
        for (auto const unit : units) bytes += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
        Write(file, record(bytes, 1));
        EXPECT_THAT(print("C.UTF-8"), HasSubstr(" (UTF-16 \"" + inUtf8 + "\")\n"));
        EXPECT_THAT(print("C"), HasSubstr(" (UTF-16 \"" + (inAscii.empty() ? inUtf8 : inAscii) + "\")\n"));
        Write(file, record(bytes, 0));
        EXPECT_THAT(print("C.UTF-8"), Not(HasSubstr("UTF-16"))) << "its flag says no";
    }
    Write(file, record("A\0\x1b"s, 1));
    EXPECT_THAT(print("C.UTF-8"), HasSubstr(R"("A\x00\x1b" (UTF-16 "A\x1b"))"));
}

TEST(Tool, ConvertTellsWhatWasKeptChangedGoneAndAdded)
{
    auto const back = TemporaryPath("back");
    auto const outcome =
        RunTool({"convert", "Clip", SamplePath("clip-long-texts.binary"), "-o", back, "--to", "compact"});
    EXPECT_EQ(outcome.status, 0);
    for (
        auto const* line :
        {R"(path                  before                                    after                                     why)",
         R"(name.data             "A name of more than twenty-four bytes"   "A name of more than twen"                cut to 24 bytes)",
         R"(varId.data            "0123456789012345678901234567890123456789"  "01234567890123456789012345678901"        cut to 32 bytes)",
         R"(keywords[0].data      "one"                                     "one\x00\x00\x00\x00\x00\x00\x00\x00\x00"  padded with zero bytes to 12 bytes)",
         R"(legacyTimecodeOffset  4294967321                                25                                        cut to its low 32 bits)",
         R"(userBits[9]           -1                                        -                                         list cut to 8 elements)",
         R"(keywords[5].data      "six"                                     -                                         list cut to 5 elements)",
         R"(sourceUmId            -                                         "        "                                not in the file)",
         R"(values: 7 kept, 17 changed, 6 gone, 28 added)"})
        EXPECT_THAT(outcome.output, HasSubstr('\n' + std::string(line) + '\n'));
    EXPECT_THAT(outcome.output, Not(HasSubstr("name.isUtf16"))) << "it was kept";

    auto const again = RunTool({"convert", "Clip", back, "-p", "compact"});
    EXPECT_THAT(again.output, EndsWith("domain to wire: success\nvalues: 52 kept, 0 changed, 0 gone, 0 added\n"));

    // Nothing is written after a failure.
    auto const none = TemporaryPath("none");
    EXPECT_EQ(RunTool({"convert", "Clip", SamplePath("clip-rate-mismatch.binary"), "-o", none}).status, 1);
    EXPECT_FALSE(std::ifstream(none));
}

TEST(Tool, TakesRecordNamesInAnyCase)
{
    auto const sample = SamplePath("guid.binary");
    auto const expected = RunTool({"print", "Guid", sample}).output;
    for (auto const* name : {"guid", "GUID", "gUiD"}) EXPECT_EQ(RunTool({"print", name, sample}).output, expected);

    std::set<std::string> names;
    for (auto const& type : Talvo::Records::RecordTypes())
    {
        std::string name(type.name);
        for (auto& letter : name) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
        EXPECT_TRUE(names.insert(name).second) << type.name << " is another record's name in another case";
    }
}

TEST(Tool, DiffPrintsWhereTwoRecordsDiffer)
{
    auto const minimal = SamplePath("clip-minimal.binary");
    auto const same = RunTool({"diff", "Clip", minimal, minimal});
    EXPECT_EQ(same.status, 0);
    EXPECT_THAT(same.output, IsEmpty());

    auto const one = TemporaryPath("one");
    auto const two = TemporaryPath("two");
    // An umId of "X", a camera, and user bits of 1; another camera, an empty text and user bits of 1 and 2.
    Write(one, "\x0b\0\1\0\0\0\1X\x0f\0\x08\x06\0\0\0\1\0\1\x08\0\x15\0\0\0\1\0"s);
    Write(two, "\x0b\0\1\0\0\0\1X\x0b\0\2\0\0\0\0\x0f\0\x08\x06\0\0\0\2\0\1\0\2\x08\0\x15\0\0\0\2\0"s);
    auto const differ = RunTool({"diff", "Clip", one, two});
    EXPECT_EQ(differ.status, 1);
    EXPECT_EQ(differ.output, "path         A      B      where\n"
                             "sourceUmId   -      \"\"     only in B\n"
                             "userBits[1]  -      2      only in B\n"
                             "camera       1 (A)  2 (B)  in both\n");
    EXPECT_THAT(differ.errors, IsEmpty());
    auto const back = RunTool({"diff", "Clip", two, one, "--json"});
    EXPECT_EQ(back.status, 1);
    EXPECT_THAT(
        nlohmann::json::parse(back.output)["changes"],
        Contains(nlohmann::json{{"path", "userBits[1]"}, {"before", 2}, {"after", nullptr}, {"why", "only in A"}}));

    ExpectRefused(RunTool({"diff", "Clip", one}), "B is required");
    ExpectRefused(RunTool({"diff", "Clip", one, SamplePath("none")}), "No such file");
    ExpectRefused(RunTool({"diff", "Clip", one, SamplePath("guid.compact")}), "guid.compact: holds no Clip");
}

TEST(Tool, TellsWhyAValueChangedWhereTheTwoValuesShowIt)
{
    struct Row
    {
        std::string record;
        std::string bytes;
        std::string path;
        std::string why;
    };
    Row const rows[] = {
        {"Clip", Sample("clip-long-texts.binary"), "umId", "cut to 8 bytes"},
        {"Clip", Sample("clip-long-texts.binary"), "userBits[0]", "cut to its low 8 bits"},
        {"Clip", Sample("clip-drop-frame.binary"), "isLegacyTimecodeDrop", "changed"},
        {"Clip", Sample("clip-unknown-numbers.binary"), "camera", "became 0"},
        {"Clip", Sample("clip-unknown-numbers.binary"), "hdrProfile", "dropped"},
        {"ClipDeletionFailedEventArgs", Sample("clip-deletion-failed.binary"), "clipCommand.userTicket",
         "cut to its low 16 bits"},
        {"ClipCreationFinishedEventArgs", Sample("clip-creation-finished.binary"), "networkType", "changed"},
        {"ClipCommandReply", Sample("clip-command-reply.binary"), "results[2]", "no longer empty"},
        {"ClipCommandReply", Sample("clip-command-reply.binary"), "results[2].operationStatus.result",
         "not in the file"},
        // A list that is empty on one side only counts as a value there.
        {"Clip", "\x0b\0\x01\0\0\0\x01X\x0f\0\x08\x06\0\0\0\0\0"s, "userBits", "no longer empty"},
        {"Clip", "\x0b\0\x01\0\0\0\x01X\x0f\0\x08\x06\0\0\0\0\0"s, "userBits[7]", "not in the file"},
        {"LoadBoundary", Sample("load-boundary.binary"), "type", "changed"},
        {"Train", Sample("train-bad-ranges.binary"), "recordingRanges[1].inBoundTimepoint", "became no time point"},
        {"Train", Sample("train-bad-ranges.binary"), "recordingRanges[1].inBoundTimecode",
         "became the empty time code"},
        {"Train", Sample("train-bad-last-time-code.binary"), "lastKnownTimeCode", "emptied"},
        // A map's keys are no places in a list.
        {"Tag", Sample("tag-unknown-keys.binary"), "properties[18].dataType", "dropped"},
        // An angle at a camera that is none: an angles group with the identifier "A", and at camera 0 the clip "B".
        {"AnglesGroup",
         "\x0c\0\1\x0b\0\1\0\0\0\1A\0\x0d\0\2\x08\x0c\0\0\0\1\0\0\0\0\x0c\0\1\x0b\0\1\0\0\0\1B\0\x08\0\2\0\0\0\0\0\0"s,
         "angles", "emptied"},
    };
    for (auto const& [record, bytes, path, why] : rows)
    {
        auto const outcome = RunTool({"convert", record, "--json"}, bytes);
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        std::map<std::string, std::string> whys;
        auto const parsed = nlohmann::json::parse(outcome.output);
        for (auto const& change : parsed["changes"]) whys[change["path"]] = change["why"];
        EXPECT_THAT(whys, Contains(std::pair(path, why)));
    }
}

TEST(Tool, PrintsJsonForAllBytes)
{
    using nlohmann::json;
    auto const parsed = [](Arguments const& arguments, std::string const& input = {})
    { return json::parse(RunTool(arguments, input).output); };

    auto const list = parsed({"list", "--json"});
    EXPECT_EQ(list.size(), Talvo::Records::RecordTypes().size());
    EXPECT_THAT(list, Contains(json{{"name", "AnglesGroupCreationFailedEventArgs"},
                                    {"namespace", "Notifier"},
                                    {"toDomain", false},
                                    {"toWire", true}}));

    // Every byte in one text, and the same text in the key of a map.
    std::string bytes, characters;
    for (int byte = 0; byte < 256; ++byte)
    {
        bytes += static_cast<char>(byte);
        characters += byte < 0x80
                          ? std::string(1, static_cast<char>(byte))
                          : std::string{static_cast<char>(0xC0 | byte >> 6), static_cast<char>(0x80 | (byte & 0x3F))};
    }
    auto const text = "\x0b\0\1\0\0\1\0"s + bytes + '\0';
    EXPECT_EQ(parsed({"print", "Guid", "--json"}, text),
              json({{"record", "Guid"}, {"values", {{{"path", "value"}, {"value", characters}}}}}));
    auto const map =
        parsed({"print", "ChainCommandParams", "--json"}, "\x0d\0\2\x0c\x0c\0\0\0\1"s + text + "\x0b\0\1\0\0\0\0\0\0"s);
    EXPECT_THAT(map["values"][0]["path"], testing::StartsWith(R"(players["\x00\x01)"));

    auto const values = parsed({"print", "Clip", "--json", SamplePath("clip-two-essences.binary")})["values"];
    EXPECT_THAT(values, AllOf(Contains(json{{"path", "isDual"}, {"value", true}}),
                              Contains(json{{"path", "outBoundField"}, {"value", 3000}})));
    EXPECT_THAT(parsed({"print", "Clip", "--json", SamplePath("clip-nothing-counts.binary")})["values"],
                Contains(json{{"path", "keywords"}, {"value", json::array()}}));

    auto const cut = parsed({"convert", "Clip", "--json", SamplePath("clip-long-texts.binary")});
    EXPECT_EQ(cut["values"], (json{{"kept", 7}, {"changed", 17}, {"gone", 6}, {"added", 28}}));
    EXPECT_EQ(cut["toWire"], (json{{"success", true}, {"message", ""}}));
    EXPECT_THAT(
        cut["changes"],
        AllOf(Contains(
                  json{{"path", "userBits[9]"}, {"before", -1}, {"after", nullptr}, {"why", "list cut to 8 elements"}}),
              Contains(json{
                  {"path", "sourceUmId"}, {"before", nullptr}, {"after", "        "}, {"why", "not in the file"}})));
    EXPECT_EQ(parsed({"convert", "Clip", "--json", SamplePath("clip-nothing-counts.binary")})["toDomain"],
              (json{{"success", false}, {"message", "Clip is empty"}}));

    // A clip whose inBoundTodTimecode is this one byte, which the message quotes.
    auto const badValue = RunTool({"convert", "Clip", "--json"}, "\x0b\0\x2a\0\0\0\1\xff\0"s);
    EXPECT_EQ(badValue.status, 1);
    auto const shown = json::parse(badValue.output);
    EXPECT_EQ(shown["toDomain"]["message"], "inBoundTodTimecode: TalvoTimeCodeParser the string '\u00ff' has not the "
                                            "expected format.");
    EXPECT_EQ(shown["toWire"], nullptr);
}

TEST(Tool, ColoursATerminalOnly)
{
    auto const convert = "talvo-wire convert Clip " + SamplePath("clip-long-texts.binary") + ' ';
    auto const onTerminal = [](std::string const& line) { return "script -qec '" + line + "' /dev/null < /dev/null"; };
    std::pair<std::string, bool> const rows[] = {
        {convert, false},
        {convert + "--color never", false},
        {convert + "--color always", true},
        {convert + "--color always --json", false},
        {"unset NO_COLOR; " + onTerminal(convert), true},
        {onTerminal("NO_COLOR= " + convert), true},
        {onTerminal("NO_COLOR=1 " + convert), false},
        {onTerminal("NO_COLOR=1 " + convert + "--color always"), true},
        {onTerminal(convert + "--color never"), false},
        {onTerminal(convert + "--json"), false},
        {onTerminal("talvo-wire list"), false},
        {"talvo-wire print Guid --color always " + SamplePath("guid.binary"), true},
    };
    for (auto const& [line, coloured] : rows)
    {
        auto const outcome = RunShell(line);
        EXPECT_EQ(outcome.status, 0) << line << outcome.errors;
        EXPECT_GT(outcome.output.size(), 40U) << line;
        EXPECT_EQ(outcome.output.find('\x1b') != std::string::npos, coloured) << line;
    }
}

TEST(Tool, HelpEndsWithExamplesThatRunAsTheyStand)
{
    auto const folder = TemporaryPath("samples");
    std::filesystem::copy(TALVO_SAMPLES, folder);
    for (auto const* command : {"list", "guess", "print", "convert", "diff", "transcode", "encode"})
    {
        auto const help = RunTool({command, "--help"});
        EXPECT_EQ(help.status, 0);
        EXPECT_EQ(help.output.find("--max-bytes N=67108864") != std::string::npos, command != "list"s);
        EXPECT_EQ(help.output.find("--max-elements N=100000") != std::string::npos,
                  command != "list"s && command != "encode"s);
        std::istringstream lines(help.output.substr(help.output.find("\nExamples") + 1));
        std::string line;
        std::getline(lines, line);
        int count = 0;
        for (; std::getline(lines, line); ++count)
        {
            EXPECT_THAT(line, HasSubstr(" talvo-wire "s + command));
            auto const outcome = RunShell("cd " + folder + "; " + line);
            EXPECT_EQ(outcome.status, 0) << line;
            EXPECT_THAT(outcome.output, Not(IsEmpty())) << line;
            EXPECT_THAT(outcome.errors, IsEmpty()) << line;
        }
        EXPECT_EQ(count, 2);
    }
}

TEST(Tool, PrintsItsVersion)
{
    using namespace Talvo::Corvane::Zelmar::Serialization::Thrift;
    auto const outcome = RunTool({"--version"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "talvo-wire " + std::to_string(VersionMajor) + '.' + std::to_string(VersionMinor) + '.' +
                                  std::to_string(VersionPatch) + '\n');
    EXPECT_THAT(outcome.errors, IsEmpty());
}

TEST(Tool, CompletesWordsInBash)
{
    // The words that were typed, the last one not to its end; the answer begins and ends with these.
    std::tuple<std::string, std::string, std::string> const rows[] = {
        {"''", "list", "--version"},
        {"tr", "transcode", "transcode"},
        {"print AsciiOr", "AsciiOrUtf16String", "AsciiOrUtf16String"},
        {"print --json -p compact Trai", "Train", "Train"},
        {"convert AsciiOr", "", ""}, // has no converters
        {"convert Clip", "Clip", "ClipUpdateFinishedEventArgs"},
        {"convert Clip -p ''", "binary", "json"},
        {"print Clip --encoding ''", "bytes", "base64"},
        {"print --all Clip --framed --max-bytes 3 ''", "", ""},
        {"print --all --framed --max-bytes 3 Cli", "Clip", "ClipUpdateFinishedEventArgs"},
        {"diff Clip --", "--help", "--color"},
        {"frobnicate ''", "", ""},
        {"transcode Clip --to c", "compact", "compact"},
        {"print Clip --color al", "always", "always"},
        {"transcode --", "--help", "--output"},
        {"list -", "--help", "--json"},
        {"print Clip ''", "", ""}, // bash completes a file name
        {"convert Clip -o ''", "", ""},
        {"list ''", "", ""},
    };
    for (auto const& [typed, first, last] : rows)
    {
        auto const outcome = RunShell("source " TALVO_COMPLETION "; COMP_WORDS=(talvo-wire " + typed +
                                      "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _talvo_wire talvo-wire "
                                      "\"${COMP_WORDS[-1]}\" \"${COMP_WORDS[-2]}\"; echo ${COMPREPLY[*]}");
        EXPECT_THAT(outcome.output, AllOf(testing::StartsWith(first), EndsWith(last + '\n'))) << typed;
        EXPECT_EQ(outcome.output.size() == 1, first.empty()) << typed;
        EXPECT_THAT(outcome.errors, IsEmpty()) << typed;
    }
    EXPECT_EQ(RunShell("source " TALVO_COMPLETION "; complete -p talvo-wire").output,
              "complete -o default -F _talvo_wire talvo-wire\n");
}

TEST(Tool, ReportsABadValueAsAFailure)
{
    // A SequenceId whose location is 110, and a Clip whose inBoundTodTimecode is "noon".
    auto const location = RunTool({"convert", "SequenceId"}, "\x08\0\1\0\0\0\x6e\0"s);
    EXPECT_EQ(location.status, 1);
    EXPECT_EQ(location.output, "wire to domain: failure\n");
    EXPECT_THAT(location.errors, OneLine("wire to domain failed: location: SequenceId.Location : invalid location"));
    auto const timeCode = RunTool({"convert", "Clip"}, "\x0b\0\x2a\0\0\0\4noon\0"s);
    EXPECT_EQ(timeCode.status, 1);
    EXPECT_THAT(timeCode.errors, OneLine("wire to domain failed: inBoundTodTimecode: TalvoTimeCodeParser the string"));

    // What a terminal would obey is escaped.
    EXPECT_THAT(RunTool({"convert", "Clip"}, "\x0b\0\x2a\0\0\0\4\n\x1b[m\0"s).errors, OneLine(R"('\x0a\x1b[m')"));
}

TEST(Tool, TranscodesThroughAllProtocolsAndTellsWhatJsonLoses)
{
    auto const binary = Sample("train.binary");
    auto const json = Transcoded("Train", Transcoded("Train", binary, "binary", "compact"), "compact", "json");
    EXPECT_EQ(Transcoded("Train", json, "json", "binary"), binary);

    auto const lossy =
        RunTool({"transcode", "Guid", SamplePath("guid.binary"), "-p", "binary", "--to", "json", "-o", "-"});
    EXPECT_EQ(lossy.status, 0);
    EXPECT_THAT(lossy.errors, OneLine("json does not keep this record; 1 of its values read back different"));

    // An empty map has no types in the compact protocol.
    auto const map = "\x0d\0\x02\x0c\x0c\0\0\0\0\0"s;
    EXPECT_EQ(Transcoded("ChainCommandParams", Transcoded("ChainCommandParams", map, "binary", "compact"), "compact",
                         "binary"),
              map);
    Transcoded("ChainCommandParams", Transcoded("ChainCommandParams", map, "binary", "compact"), "compact", "json");
}

TEST(Tool, KeepsFieldsThatTheRecordDoesNotHave)
{
    // Field 99 is a text, field 100 a list of one record; field 1 of a Guid is a text.
    auto const bytes = "\x0b\0\x01\0\0\0\x01X\x0b\0\x63\0\0\0\x03new\x0f\0\x64\x0c\0\0\0\x01\x08\0\x01\0\0\0\x07\0\0"s;
    auto const printed = RunTool({"print", "Guid"}, bytes);
    EXPECT_EQ(printed.status, 0);
    EXPECT_EQ(printed.output, "Guid\n  value = \"X\"\n");
    EXPECT_THAT(printed.errors, OneLine("2 fields that the record does not have"));
    for (auto const& protocol : Protocols)
        EXPECT_EQ(Transcoded("Guid", Transcoded("Guid", bytes, "binary", protocol), protocol, "binary"), bytes);
    EXPECT_THAT(Transcoded("Guid", bytes, "binary", "json"), HasSubstr(R"("99":{"str":"new"})"));

    ExpectRefused(RunTool({"print", "Train", SamplePath("clip-minimal.binary")}),
                  "it holds none of that record's fields");
}

TEST(Tool, RefusesWrongUsage)
{
    auto const sample = SamplePath("guid.binary");
    std::pair<Arguments, std::string> const rows[] = {
        {{}, "subcommand"},
        {{"frobnicate"}, "there is no command 'frobnicate'; talvo-wire --help"},
        {{"prnit", "Guid"}, "there is no command 'prnit'; did you mean 'print'?"},
        {{"transcod"}, "did you mean 'transcode'?"},
        {{"print"}, "RECORD is required"},
        {{"print", "Guid", sample, "more"}, "not expected"},
        {{"print", "Gwid", sample}, "there is no record 'Gwid'; did you mean 'Guid'?"},
        {{"print", "trian", sample}, "there is no record 'trian'; did you mean 'Train'?"},
        {{"print", "GetClipCommandReply", sample}, "did you mean 'GetClipsCommandReply'?"},
        {{"print", "Frobnicated", sample}, "there is no record 'Frobnicated'; talvo-wire list"},
        {{"print", std::string(100'000, 'C'), sample}, "CCC'; talvo-wire list"},
        {{"print", "Guid", sample, "-p", "xml"}, "there is no protocol 'xml'"},
        {{"print", "Guid", sample, "--color", "red"}, "--color: red not in {auto,always,never}"},
        {{"print", "Guid", sample, "--max-bytes", "0"}, "--max-bytes: Value 0 not in range 1 to 2147483647"},
        {{"print", "Guid", sample, "--max-bytes", "22"}, "more than the 22 bytes of --max-bytes"},
        {{"print", "Playlist", SamplePath("playlist.binary"), "--max-elements", "1"},
         "maybe --max-elements: a list of 2 elements exceeds the bound of 1"},
        {{"transcode", "Guid", sample, "-p", "binary", "--to", "json", "-o", "-", "--json"}, "not expected"},
        {{"print", "Guid", SamplePath("none")}, "No such file"},
        {{"print", "Guid", TALVO_SAMPLES}, "can't read"},
        {{"convert", "AsciiOrUtf16String", sample}, "has no converters in both directions"},
        {{"convert", "Guid", sample, "--to", "xml"}, "there is no protocol 'xml'"},
        {{"convert", "Guid", sample, "-o", "-"}, "-o needs a file"},
        {{"transcode", "Guid", sample, "-p", "binary", "-o", "-"}, "--to is required"},
        {{"transcode", "Guid", sample, "--to", "json", "-o", "-"}, "--protocol is required"},
        {{"transcode", "Guid", sample, "-p", "binary", "--to", "json"}, "--output is required"},
        {{"transcode", "Guid", sample, "-p", "binary", "--to", "compact", "-o", "/dev/full"}, "can't write /dev/full"},
        {{"transcode", "Guid", sample, "-p", "binary", "--to", "compact", "-o", TALVO_SAMPLES "/none/x"},
         "can't write"},
    };
    for (auto const& [arguments, text] : rows)
    {
        SCOPED_TRACE(testing::PrintToString(arguments));
        ExpectRefused(RunTool(arguments), text);
    }

    auto const unwritable = RunTool({"convert", "Guid", sample, "-o", "/dev/full"});
    EXPECT_EQ(unwritable.status, 2);
    EXPECT_THAT(unwritable.errors, OneLine("can't write /dev/full"));
    auto const noOutput = RunTool({"list"}, {}, "/dev/full");
    EXPECT_EQ(noOutput.status, 2);
    EXPECT_THAT(noOutput.errors, OneLine("standard output"));
    EXPECT_EQ(RunTool({"convert", "--help"}).status, 0);
    auto const noHelp = RunTool({"convert", "--help"}, {}, "/dev/full");
    EXPECT_EQ(noHelp.status, 2);
    EXPECT_THAT(noHelp.errors, OneLine("standard output"));
}

TEST(Tool, ReadsStandardInput)
{
    for (auto const& command : {Arguments{"print"}, Arguments{"convert"},
                                Arguments{"transcode", "-p", "binary", "--to", "compact", "-o", "-"}})
    {
        auto const given = [&](Arguments const& file)
        {
            auto arguments = command;
            arguments.insert(arguments.begin() + 1, "Guid");
            arguments.insert(arguments.begin() + 2, file.begin(), file.end());
            return arguments;
        };
        auto const expected = RunTool(given({SamplePath("guid.binary")})).output;
        EXPECT_THAT(expected, Not(IsEmpty()));
        EXPECT_EQ(RunTool(given({}), Sample("guid.binary")).output, expected);
        EXPECT_EQ(RunTool(given({"-"}), Sample("guid.binary")).output, expected);
        ExpectRefused(RunTool(given({"-"})), "standard input: holds no Guid in the binary protocol: it is empty");
    }
    ExpectRefused(RunShell("talvo-wire print Guid < /"), "can't read standard input: Is a directory");
}

/// Reads bytes as the tool does, in this process, which for hundreds of inputs is quicker than one each: what is not
/// refused in one line has values.
void ReadOrRefuse(std::string const& record, std::string const& protocol, std::string const& bytes,
                  bool const mustRefuse)
{
    using namespace Talvo::Tools;
    try
    {
        auto const decoded = Decode(Message(bytes, ParseProtocol(protocol), FindRecordType(record)));
        decoded.record->VisitValues([](Talvo::Records::Place const& place) { EXPECT_TRUE(place.before); });
        EXPECT_FALSE(mustRefuse);
    }
    catch (Failure const& failure)
    {
        EXPECT_THAT(failure.what(), MatchesRegex("holds no " + record + " [^\n]+"));
    }
}

TEST(Tool, RefusesRecordsThatAreCutOffOrFollowedByMore)
{
    for (auto const& protocol : Protocols)
    {
        auto const whole = Transcoded("RecordingRange", Sample("recording-range.binary"), "binary", protocol);
        for (std::size_t size = 0; size < whole.size(); ++size)
        {
            SCOPED_TRACE(protocol + ' ' + std::to_string(size));
            auto const cut = whole.substr(0, size);
            ReadOrRefuse("RecordingRange", protocol, cut, true);
            if (size % 16 == 0) ExpectRefused(RunTool({"print", "RecordingRange", "-p", protocol}, cut));
        }
        ExpectRefused(RunTool({"print", "RecordingRange", "-p", protocol}, whole + "\0\n"s), "2 more bytes follow");
    }
}

TEST(Tool, ReadsOrRefusesChangedJson) // the other protocols are the fuzzer's
{
    std::mt19937 random(1);
    std::uniform_int_distribution byte(0, 255);
    auto const whole = Transcoded("AnglesGroup", Sample("angles-group.binary"), "binary", "json");
    for (std::size_t position = 0; position < whole.size(); ++position)
    {
        auto changed = whole;
        changed[position] = static_cast<char>(byte(random));
        SCOPED_TRACE(testing::PrintToString(changed));
        ReadOrRefuse("AnglesGroup", "json", changed, false);
    }
}

std::string Repeated(std::string const& bytes, std::size_t const count)
{
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += bytes;
    return all;
}

/// A Guid whose value is `bytes`.
std::string GuidOf(std::string const& bytes)
{
    return "\x0b\0\1"s + Number(bytes.size()) + bytes + '\0';
}

/// A record of one field, a list or map of `count` records.
std::string Holding(std::string const& field, std::size_t const count, std::string const& elements)
{
    return field + Number(count) + elements + '\0';
}

/// Of channels that a hash table of theirs takes for one another: 5 pairs of bytes give the same sum.
std::string CollidingGuids(std::size_t const count)
{
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
    {
        std::string bytes;
        for (auto rest = i; bytes.size() < 16; rest /= 5)
        {
            bytes += static_cast<char>(rest % 5);
            bytes += static_cast<char>(124 - 31 * (rest % 5));
        }
        all += GuidOf(bytes);
    }
    return all;
}

TEST(Tool, TakesMemoryInProportionToTheFile)
{
    if (TALVO_SANITIZED) GTEST_SKIP() << "a sanitizer takes memory of its own";
    struct Row
    {
        std::string record;
        std::string (*make)();
        std::size_t factor; ///< Of the file's bytes.
        int status;
    };
    Row const rows[] = {
        {"GetClipsCommandReply", [] { return Holding("\x0f\0\3\x0c"s, 100'000, std::string(100'000, '\0')); }, 40, 2},
        {"GetChannelsCommandReply",
         []
         { return Holding("\x0d\0\2\x0c\x0c"s, 1, GuidOf(std::string(32'000, 'k')) + Sample("player-state.binary")); },
         40, 0},
        {"GetClipsCommandReply",
         [] { return Holding("\x0f\0\3\x0c"s, 2500, Repeated(Sample("clip-two-essences.binary"), 2500)); }, 6, 0},
        {"GoIdleCommandParams", [] { return Holding("\x0e\0\2\x0c"s, 100'000, CollidingGuids(100'000)); }, 40, 2},
    };
    // The peak of a process begins with that of the one that starts it, which an instrumented build makes larger.
    long const fixed = std::max(32L * 1024, RunTool({"list"}).peakKilobytes + 4L * 1024);
    auto const output = TemporaryPath("printed");
    for (auto const& [record, make, factor, status] : rows)
        for (auto const* command : {"print", "convert"})
        {
            auto const bytes = make();
            SCOPED_TRACE(record + ' ' + command + ' ' + std::to_string(bytes.size()));
            auto const outcome = RunTool({command, record}, bytes, output);
            EXPECT_EQ(outcome.status, status) << outcome.errors;
            EXPECT_LT(outcome.peakKilobytes, fixed + static_cast<long>(factor * bytes.size() / 1024));
            EXPECT_LT(std::filesystem::file_size(output), 300'000 + 10 * bytes.size());
        }

    // Replies without clips, which an honest peer sends, are the records that take the most for their bytes.
    auto const result = "\x0c\0\1\x08\0\1\0\0\0\2\x08\0\2\0\0\0\0\0\0"s;
    EXPECT_EQ(
        RunTool({"print", "ClipCommandReply"}, Holding("\x0f\0\2\x0c"s, 100'000, Repeated(result, 100'000))).status, 0);
}

TEST(Tool, EndsWithASentenceWhereMemoryRunsOut)
{
    if (TALVO_SANITIZED) GTEST_SKIP() << "a sanitizer takes address space of its own";
    auto const file = TemporaryPath("clips");
    Write(file, Holding("\x0f\0\3\x0c"s, 4000, Repeated(Sample("clip-two-essences.binary"), 4000)));
    auto const limited = [](int const kilobytes, std::string const& arguments)
    { return RunShell("ulimit -v " + std::to_string(kilobytes) + "; talvo-wire " + arguments); };

    // More and more, from what the tool itself needs to what reading and converting needs.
    int kilobytes = 8'000;
    while (limited(kilobytes, "list").status != 0) ASSERT_LT(kilobytes += 1'000, 200'000);
    int count = 0;
    for (;; ++count, kilobytes += 500)
    {
        auto const outcome = limited(kilobytes, "convert GetClipsCommandReply " + file);
        if (outcome.status == 0) break;
        ASSERT_EQ(outcome.status, 2) << kilobytes << outcome.errors;
        ASSERT_THAT(outcome.errors, OneLine("it needs more memory than there is"));
    }
    EXPECT_GT(count, 5);
}

TEST(Tool, EscapesWhatATerminalWouldObey)
{
    auto const folder = TemporaryPath("\x1b[31m");
    std::filesystem::create_directory(folder);
    auto const file = folder + "/\n";
    Write(file, "\x0b\0\1\0\0\0\1X\x08\0\2\0\0\0\0\0"s);
    std::pair<Arguments, int> const rows[] = {
        {{"print", "Guid", file}, 0}, // with a note of a field that is skipped
        {{"print", "Train", file}, 2},
        {{"print", "Guid", folder + "/none"}, 2},
        {{"print", "\x1b[31m"}, 2},
        {{"print", "Guid", file, "-p", "\x1b[31m"}, 2},
        {{"print", "Guid", file, "--color", "\x1b[31m"}, 2},
        {{"transcode", "Guid", file, "-p", "binary", "--to", "json", "-o", folder + "/none/x"}, 2},
    };
    for (auto const& [arguments, status] : rows)
    {
        auto const outcome = RunTool(arguments);
        EXPECT_EQ(outcome.status, status);
        EXPECT_THAT(outcome.errors, AllOf(OneLine(R"(\x1b[31m)"), Not(HasSubstr("\x1b"))));
    }
}

TEST(Tool, BelievesNoSizeBeyondTheFile)
{
    struct Row
    {
        std::string record;
        std::string protocol;
        std::string bytes;
    };
    auto const nested = [](std::string const& open, int depth)
    {
        std::string bytes;
        for (int level = 0; level < depth; ++level) bytes += open;
        return bytes;
    };
    // In three megabytes, a list claims two million clips.
    auto const padding = std::string(3'000'000, 'x');
    Row const rows[] = {
        {"Train", "binary", "\x0f\0\x02\x0c\x7f\xff\xff\xff\0"s},
        {"Train", "binary", "\x0f\0\x02\x0c\xff\xff\xff\xff\0"s},
        {"GetClipsCommandReply", "binary", "\x0f\0\x03\x0c\0\x1e\x84\x80\0"s + padding},
        {"Train", "binary", "\x0b\0\x05\x7f\xff\xff\xff\0"s},
        {"GoIdleCommandParams", "binary", "\x0e\0\x02\x0c\x7f\xff\xff\xff\0"s},
        {"ChainCommandParams", "binary", "\x0d\0\x02\x0c\x0c\x7f\xff\xff\xff\0"s},
        {"Guid", "binary", "\x0f\0\x63\x0c\x7f\xff\xff\xff\0"s},
        {"Guid", "binary", nested("\x0c\0\x63"s, 100'000)},
        {"Train", "compact", "\x29\xfc\xff\xff\xff\xff\x07\0"s},
        {"Train", "compact", "\x29\xfc\xff\xff\xff\xff\x0f\0"s},
        {"GetClipsCommandReply", "compact", "\x39\xfc\x80\x89\x7a\0"s + padding},
        {"Train", "compact", "\x58\xff\xff\xff\xff\x07\0"s},
        {"ChainCommandParams", "compact", "\x2b\xff\xff\xff\xff\x07\xcc\0"s},
        {"Guid", "compact", nested("\x2c"s, 100'000)},
        {"Train", "json", R"({"2":{"lst":["rec",2147483647,{}]}})"},
        {"GetClipsCommandReply", "json", R"({"3":{"lst":["rec",1000000,{}]}})"},
        {"Train", "json", R"({"2":{"lst":["rec",-1,{}]}})"},
        {"Train", "json", R"({"2":{"lst":["rec",99999999999999999999,{}]}})"},
        {"ChainCommandParams", "json", R"({"2":{"map":["rec","rec",2147483647,{}]}})"},
        {"Guid", "json", nested(R"({"99":{"rec":)", 100'000)},
    };
    for (auto const& row : rows)
    {
        SCOPED_TRACE(row.record + ' ' + row.protocol + ' ' + testing::PrintToString(row.bytes.substr(0, 40)));
        auto const outcome = RunTool({"print", row.record, "-p", row.protocol}, row.bytes);
        ExpectRefused(outcome, "holds no " + row.record);
        EXPECT_LT(outcome.peakKilobytes, 250'000);
    }

    ExpectRefused(RunTool({"print", "Guid"}, std::string(64 * 1024 * 1024 + 1, 'x')), "more than the 67108864 bytes");
}

} // namespace

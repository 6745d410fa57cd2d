#include "tests/tools/Tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <random>
#include <set>
#include <sstream>

namespace
{

using testing::AllOf;
using testing::AnyOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;
using namespace std::string_literals;

using Arguments = std::vector<std::string>;

std::string SamplePath(std::string const& file)
{
    return TALVO_SAMPLES "/" + file;
}
std::string Sample(std::string const& file)
{
    return Read(SamplePath(file));
}

/// One line of the tool's own, with that text in it.
auto OneLine(std::string const& text)
{
    return AllOf(MatchesRegex("talvo-wire: [^\n]+\n"), HasSubstr(text));
}

void ExpectRefused(Outcome const& outcome, std::string const& text = {})
{
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.output, IsEmpty());
    EXPECT_THAT(outcome.errors, OneLine(text));
}

/// The record in another protocol, as the tool writes it.
std::string Transcoded(std::string const& record, std::string const& bytes, std::string const& from,
                       std::string const& to)
{
    auto const outcome = RunTool({"transcode", record, "-p", from, "--to", to, "-o", "-"}, bytes);
    EXPECT_EQ(outcome.status, 0) << record << ' ' << from << ' ' << to << ' ' << outcome.errors;
    return outcome.output;
}

std::string const Protocols[] = {"binary", "compact", "json"};

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
    EXPECT_EQ(listed.size(), 113U);

    std::set<std::string> both;
    for (auto const& [name, directions] : listed)
        if (directions == "both") both.insert(name);
    for (auto const* name : {"Angle", "AnglesGroup", "Clip", "Essence", "Guid", "LoadBoundary",
                             "MultiviewerDataOverrides", "OperationStatus", "PlayerClipOnAir", "PlayerDataOverrides",
                             "PlayerState", "RecorderState", "RecordingRange", "ServerInfo", "Train"})
        EXPECT_TRUE(both.contains(name)) << name;
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
        {"AnglesGroup angles-group.binary", R"(  angles[3].clipId.value = "\x00\xff\x80TALVO-PEER-\x00\x02")"},
        {"PlayCommandParams play-command.binary", R"(  players[1].value = "\x00\xff\x80TALVO-PEER-\x00\x16")"},
        {"Train train.binary", R"(  recordingRanges[1].outBoundTimecode = "2024-06-15T18:00:00:00@50")"},
        {"Clip clip-two-essences.binary", "  isDual = true"},
        {"Clip clip-nothing-counts.binary", "  keywords = []"},
    };
    for (auto const& [arguments, line] : lines)
    {
        auto const space = arguments.find(' ');
        auto const outcome = RunTool({"print", arguments.substr(0, space), SamplePath(arguments.substr(space + 1))});
        EXPECT_THAT(outcome.output, HasSubstr('\n' + line + '\n')) << arguments;
    }

    // Quotes and backslashes are told apart from the tool's own.
    auto const quoted = RunTool({"print", "Guid", "-p", "json"}, R"({"1":{"str":"a\"b\\x00"}})"
                                                                 "\n");
    EXPECT_EQ(quoted.output, "Guid\n  value = \"a\\\"b\\\\x00\"\n");
}

TEST(Tool, ConvertTellsWhatWasKeptChangedGoneAndAdded)
{
    auto const back = TemporaryPath("back");
    auto const outcome =
        RunTool({"convert", "Clip", SamplePath("clip-long-texts.binary"), "-o", back, "--to", "compact"});
    EXPECT_EQ(outcome.status, 0);
    for (auto const* line :
         {R"(changed  name.data: "A name of more than twenty-four bytes" -> "A name of more than twen")",
          R"(changed  keywords[0].data: "one" -> "one\x00\x00\x00\x00\x00\x00\x00\x00\x00")",
          R"(changed  legacyTimecodeOffset: 4294967321 -> 25)", R"(gone     keywords[5].data: "six")",
          R"(gone     userBits[9]: -1)", R"(added    sourceUmId: "        ")",
          R"(values: 7 kept, 17 changed, 6 gone, 28 added)"})
        EXPECT_THAT(outcome.output, HasSubstr('\n' + std::string(line) + '\n'));
    EXPECT_THAT(outcome.output, Not(HasSubstr("name.isUtf16"))) << "it was kept";

    auto const again = RunTool({"convert", "Clip", back, "-p", "compact"});
    EXPECT_THAT(again.output, EndsWith("\nvalues: 52 kept, 0 changed, 0 gone, 0 added\n"));

    // A list that is empty on one side only counts as a value there.
    auto const filled = RunTool({"convert", "Clip"}, "\x0b\0\x01\0\0\0\x01X\x0f\0\x08\x06\0\0\0\0\0"s);
    EXPECT_THAT(filled.output, AllOf(HasSubstr("\ngone     userBits: []\n"), HasSubstr("\nadded    userBits[7]: 0\n")));

    // Nothing is written after a failure.
    auto const none = TemporaryPath("none");
    EXPECT_EQ(RunTool({"convert", "Clip", SamplePath("clip-rate-mismatch.binary"), "-o", none}).status, 1);
    EXPECT_FALSE(std::ifstream(none));
}

TEST(Tool, DoesNotConvertWhatWouldEndTheProcess)
{
    // A SequenceId whose location is 110, and a Clip whose inBoundTodTimecode is "noon".
    auto const location = RunTool({"convert", "SequenceId"}, "\x08\0\1\0\0\0\x6e\0"s);
    EXPECT_EQ(location.status, 1);
    EXPECT_THAT(location.output, IsEmpty());
    EXPECT_THAT(location.errors, OneLine("location would end the process: SequenceId.Location : invalid location"));
    auto const timeCode = RunTool({"convert", "Clip"}, "\x0b\0\x2a\0\0\0\4noon\0"s);
    EXPECT_EQ(timeCode.status, 1);
    EXPECT_THAT(timeCode.errors, OneLine("inBoundTodTimecode would end the process: TalvoTimeCodeParser the string"));
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
        {{"frobnicate"}, "subcommand"},
        {{"print"}, "RECORD is required"},
        {{"print", "Guid", sample, "more"}, "not expected"},
        {{"print", "Gwid", sample}, "there is no record 'Gwid'"},
        {{"print", "guid", sample}, "there is no record 'guid'"},
        {{"print", "Guid", sample, "-p", "xml"}, "there is no protocol 'xml'"},
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
}

TEST(Tool, ReadsStandardInput)
{
    auto const expected = RunTool({"print", "Guid", SamplePath("guid.binary")}).output;
    EXPECT_EQ(RunTool({"print", "Guid"}, Sample("guid.binary")).output, expected);
    EXPECT_EQ(RunTool({"print", "Guid", "-"}, Sample("guid.binary")).output, expected);
    ExpectRefused(RunTool({"print", "Guid", "-"}), "standard input: holds no Guid in the binary protocol: it is empty");
}

TEST(Tool, RefusesRecordsThatAreCutOffOrFollowedByMore)
{
    for (auto const& protocol : Protocols)
    {
        auto const whole = Transcoded("RecordingRange", Sample("recording-range.binary"), "binary", protocol);
        for (std::size_t size = 0; size < whole.size(); ++size)
        {
            SCOPED_TRACE(protocol + ' ' + std::to_string(size));
            ExpectRefused(RunTool({"print", "RecordingRange", "-p", protocol}, whole.substr(0, size)));
        }
        ExpectRefused(RunTool({"print", "RecordingRange", "-p", protocol}, whole + "\0\n"s), "2 more bytes follow");
    }
}

TEST(Tool, NeverEndsByASignalOnGarbage)
{
    std::mt19937 random(1);
    std::uniform_int_distribution byte(0, 255);
    for (auto const& protocol : Protocols)
    {
        auto const expectEnded = [&](std::string const& record, std::string const& bytes)
        {
            auto const outcome = RunTool({"print", record, "-p", protocol}, bytes);
            EXPECT_THAT(outcome.status, AnyOf(0, 2)) << protocol << ' ' << testing::PrintToString(bytes);
            if (outcome.status == 2)
            {
                EXPECT_THAT(outcome.errors, OneLine("holds no " + record));
            }
        };

        for (int round = 0; round < 50; ++round)
        {
            std::string garbage(static_cast<std::size_t>(byte(random)) + 1, '\0');
            for (char& c : garbage) c = static_cast<char>(byte(random));
            expectEnded("Playlist", garbage);
        }

        auto const whole = Transcoded("AnglesGroup", Sample("angles-group.binary"), "binary", protocol);
        for (std::size_t position = 0; position < whole.size(); ++position)
        {
            auto changed = whole;
            changed[position] = static_cast<char>(byte(random));
            expectEnded("AnglesGroup", changed);
        }
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

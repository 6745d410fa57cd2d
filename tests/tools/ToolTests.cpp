#include "Thrift/Version.h"
#include "tests/Recorded.h"
#include "tests/tools/Tool.h"
#include "tools/Failure.h"
#include "tools/Protocols.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <random>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>

namespace
{

using namespace std::string_literals;

/// Runs the commands of a file in tests/tools/runs. A command begins with "$ " and goes on with "> ". Returns the file with
/// the results of each command below it: lines of its standard output after two blanks, lines of its errors after "! ", and
/// its exit status after "? " if that is not 0.
std::string Replayed(std::string const& file)
{
    std::istringstream lines(Read(TALVO_RECORDED "/" + file));
    std::string text, command;
    auto const run = [&]
    {
        if (command.empty()) return;
        auto const outcome = RunShell("cd " + TemporaryPath("samples") + "; export LC_ALL=C.UTF-8; unset NO_COLOR; " +
                                      std::exchange(command, {}));
        for (auto const& [mark, output] : {std::pair("  ", outcome.output), std::pair("! ", outcome.errors)})
        {
            EXPECT_TRUE(output.empty() || output.ends_with('\n')) << output;
            std::istringstream results(output);
            for (std::string line; std::getline(results, line);) text += mark + line + '\n';
        }
        if (outcome.status != 0) text += "? " + std::to_string(outcome.status) + '\n';
    };
    for (std::string line; std::getline(lines, line);)
    {
        auto const mark = line.substr(0, 2);
        if (mark == "  " || mark == "! " || mark == "? ") continue;
        if (mark != "> ") run();
        if (mark == "$ " || mark == "> ") command += line.substr(2) + '\n';
        text += line + '\n';
    }
    run();
    return text;
}

TEST(Tool, RunsAsRecorded)
{
    std::filesystem::copy(TALVO_SAMPLES, TemporaryPath("samples"));
    std::filesystem::copy(TALVO_COMPLETION, TemporaryPath("samples"));
    for (auto const* file :
         {"usage.txt", "print.txt", "convert.txt", "transcode.txt", "captures.txt", "encode.txt", "completion.txt"})
    {
        SCOPED_TRACE(file);
        Talvo::Tests::ExpectRecorded(Replayed(file), file);
    }
}

TEST(Tool, PrintsItsVersion) // not recorded, since it changes with every release
{
    using namespace Talvo::Corvane::Zelmar::Serialization::Thrift;
    std::ostringstream expected;
    expected << "talvo-wire " << VersionMajor << '.' << VersionMinor << '.' << VersionPatch << '\n';
    EXPECT_EQ(RunTool({"--version"}).output, expected.str());
}

/// Reads bytes as the tool does, but in this process, which is quicker. They have values or are refused with one line.
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
        EXPECT_THAT(failure.what(), testing::MatchesRegex("holds no " + record + " [^\n]+"));
    }
}

TEST(Tool, ReadsOrRefusesCutAndChangedRecords)
{
    for (auto const& protocol : Protocols)
    {
        auto const whole = Transcoded("RecordingRange", Sample("recording-range.binary"), "binary", protocol);
        for (std::size_t size = 0; size < whole.size(); ++size)
        {
            SCOPED_TRACE(protocol + ' ' + std::to_string(size));
            ReadOrRefuse("RecordingRange", protocol, whole.substr(0, size), true);
        }
    }
    std::mt19937 random(1); // for JSON; the fuzzer changes the other protocols
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

/// Identifiers of channels with the same hash: 5 pairs of bytes give the same sum.
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
    // The peak of a process starts at that of its parent, which is larger in an instrumented build.
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

    // Replies without clips are valid, and take more memory for their bytes than any other record.
    auto const result = "\x0c\0\1\x08\0\1\0\0\0\2\x08\0\2\0\0\0\0\0\0"s;
    EXPECT_EQ(
        RunTool({"print", "ClipCommandReply"}, Holding("\x0f\0\2\x0c"s, 100'000, Repeated(result, 100'000))).status, 0);
}

TEST(Tool, ReportsThatMemoryRanOut)
{
    if (TALVO_SANITIZED) GTEST_SKIP() << "a sanitizer takes address space of its own";
    auto const file = TemporaryPath("clips");
    Write(file, Holding("\x0f\0\3\x0c"s, 4000, Repeated(Sample("clip-two-essences.binary"), 4000)));
    auto const limited = [](int const kilobytes, std::string const& arguments)
    { return RunShell("ulimit -v " + std::to_string(kilobytes) + "; talvo-wire " + arguments); };

    // Increase the limit from what the tool itself needs to what the conversion needs.
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

TEST(Tool, RejectsSizesBeyondTheFileWithoutAllocating)
{
    // A list that claims two million clips is in a file of three megabytes.
    auto const padding = std::string(3'000'000, 'x');
    std::tuple<std::string, std::string, std::string> const rows[] = {
        {"Train", "binary", "\x0f\0\x02\x0c\x7f\xff\xff\xff\0"s},
        {"Train", "binary", "\x0f\0\x02\x0c\xff\xff\xff\xff\0"s},
        {"GetClipsCommandReply", "binary", "\x0f\0\x03\x0c\0\x1e\x84\x80\0"s + padding},
        {"Train", "binary", "\x0b\0\x05\x7f\xff\xff\xff\0"s},
        {"GoIdleCommandParams", "binary", "\x0e\0\x02\x0c\x7f\xff\xff\xff\0"s},
        {"ChainCommandParams", "binary", "\x0d\0\x02\x0c\x0c\x7f\xff\xff\xff\0"s},
        {"Guid", "binary", "\x0f\0\x63\x0c\x7f\xff\xff\xff\0"s},
        {"Guid", "binary", Repeated("\x0c\0\x63"s, 100'000)},
        {"Train", "compact", "\x29\xfc\xff\xff\xff\xff\x07\0"s},
        {"Train", "compact", "\x29\xfc\xff\xff\xff\xff\x0f\0"s},
        {"GetClipsCommandReply", "compact", "\x39\xfc\x80\x89\x7a\0"s + padding},
        {"Train", "compact", "\x58\xff\xff\xff\xff\x07\0"s},
        {"ChainCommandParams", "compact", "\x2b\xff\xff\xff\xff\x07\xcc\0"s},
        {"Guid", "compact", Repeated("\x2c"s, 100'000)},
        {"Train", "json", R"({"2":{"lst":["rec",2147483647,{}]}})"},
        {"GetClipsCommandReply", "json", R"({"3":{"lst":["rec",1000000,{}]}})"},
        {"Train", "json", R"({"2":{"lst":["rec",-1,{}]}})"},
        {"Train", "json", R"({"2":{"lst":["rec",99999999999999999999,{}]}})"},
        {"ChainCommandParams", "json", R"({"2":{"map":["rec","rec",2147483647,{}]}})"},
        {"Guid", "json", Repeated(R"({"99":{"rec":)", 100'000)},
    };
    for (auto const& [record, protocol, bytes] : rows)
    {
        SCOPED_TRACE(record + ' ' + protocol + ' ' + testing::PrintToString(bytes.substr(0, 40)));
        auto const outcome = RunTool({"print", record, "-p", protocol}, bytes);
        ExpectRefused(outcome, "holds no " + record);
        EXPECT_LT(outcome.peakKilobytes, 250'000);
    }
}

} // namespace

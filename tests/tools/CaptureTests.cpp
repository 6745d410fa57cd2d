#include "tests/tools/Tool.h"

#include <nlohmann/json.hpp>

#include <string>
#include <tuple>
#include <utility>

namespace
{

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using namespace std::string_literals;

std::string Framed(std::string const& bytes)
{
    return Number(bytes.size()) + bytes;
}

/// A Guid of one character.
std::string Guid(char const character)
{
    return "\x0b\0\1\0\0\0\1"s + character + '\0';
}

std::string const Strict = "\x80\1\0\1\0\0\0\4Ping\0\0\0\7"s;
std::string const Old = "\0\0\0\4Ping\2\0\0\0\7"s;

TEST(Capture, FindsFramesAndHeadersAroundOneRecord)
{
    // Protocol, what stands before and after the record, and the note of that.
    std::tuple<std::string, std::string, std::string, std::string> const rows[] = {
        {"binary", "", "", ""},
        {"binary", Strict, "", " after the header of the call 'Ping', number 7"},
        {"binary", Old, "", " after the header of the reply 'Ping', number 7"},
        {"compact", "", "", ""},
        {"compact", "\x82\x81\7\4Ping", "", " after the header of the one-way call 'Ping', number 7"},
        {"json", "", "\n", ""},
        {"json", R"([1,"Ping",3,7,)", "]\n", " after the header of the exception 'Ping', number 7"},
    };
    auto const binary = Sample("train.binary");
    auto const printed = RunTool({"print", "Train"}, binary).output;
    for (auto const& [protocol, before, after, note] : rows)
    {
        SCOPED_TRACE(protocol + note);
        auto const noted = [](std::string const& text)
        { return "talvo-wire: note: standard input holds the record" + text + '\n'; };
        auto const record = protocol == "binary" ? binary : Transcoded("Train", binary, "binary", protocol);
        auto const bytes = before + record + after;
        auto const plain = RunTool({"print", "Train", "-p", protocol}, bytes);
        EXPECT_EQ(plain.output, printed);
        EXPECT_EQ(plain.errors, note.empty() ? "" : noted(note));
        auto const framed = RunTool({"print", "Train", "-p", protocol}, Framed(bytes));
        EXPECT_EQ(framed.output, printed);
        EXPECT_EQ(framed.errors, noted(" in a frame" + (note.empty() ? "" : ',' + note)));

        auto const asked = RunTool({"print", "Train", "-p", protocol, "--framed"}, Framed(bytes));
        EXPECT_EQ(asked.output, printed);
        EXPECT_EQ(asked.errors, plain.errors) << "the frame was asked for";
        ExpectRefused(RunTool({"print", "Train", "-p", protocol, "--framed"}, bytes), "holds no Train");
        ExpectRefused(RunTool({"print", "Train", "-p", protocol}, Framed(bytes).substr(0, bytes.size())));
        ExpectRefused(RunTool({"print", "Train", "-p", protocol}, bytes + Framed(bytes)));
    }
}

TEST(Capture, ReadsSeveralRecords)
{
    auto const all = [](std::string const& bytes, Arguments arguments = {"print", "Guid"})
    {
        arguments.emplace_back("--all");
        return RunTool(std::move(arguments), bytes);
    };
    auto const printed = "Guid\n  value = \"A\"\nGuid\n  value = \"B\"\n"s;
    std::tuple<std::string, std::string, std::string> const rows[] = {
        {"binary", Guid('A') + Guid('B'), ""},
        {"binary", Framed(Guid('A')) + Framed(Guid('B')), "2 records in frames"},
        {"binary", Strict + Guid('A') + Old + Guid('B'),
         "2 records after message headers, the first that of the call 'Ping'"},
        {"binary", Framed(Old + Guid('A')) + Framed(Strict + Guid('B')),
         "2 records in frames, after message headers, the first that of the reply 'Ping'"},
        {"compact", "\x18\1A\0\x18\1B\0"s, ""},
        {"json", "{\"1\":{\"str\":\"A\"}}\n\n{\"1\":{\"str\":\"B\"}}\n", ""},
    };
    for (auto const& [protocol, bytes, note] : rows)
    {
        auto const outcome = all(bytes, {"print", "Guid", "-p", protocol});
        EXPECT_EQ(outcome.output, printed) << note << outcome.errors;
        EXPECT_THAT(outcome.errors, note.empty() ? testing::Matcher<std::string>(IsEmpty()) : OneLine(note));
        auto const together = all(bytes, {"transcode", "Guid", "-p", protocol, "--to", "binary", "-o", "-"});
        EXPECT_EQ(together.output, Guid('A') + Guid('B'));
    }
    EXPECT_EQ(all(Guid('A')).status, 0);

    // A record that is no Guid and one that is cut off, each at its place.
    auto const wrong = all(Framed(Guid('A')) + Framed("\x08\0\1\0\0\0\1\0"s));
    EXPECT_EQ(wrong.status, 2);
    EXPECT_THAT(wrong.errors, HasSubstr("talvo-wire: standard input, record 1: holds no Guid"));
    ExpectRefused(all(Framed(Guid('A')) + Framed(Guid('B')) + "\0\0\0\7\x0b"s), "at byte 26 after 2 records");
    ExpectRefused(all(""), "it is empty");

    // Each is converted; after a failure nothing is written.
    auto const back = TemporaryPath("all-back");
    auto const clip = Sample("clip-minimal.binary");
    EXPECT_EQ(all(clip + clip, {"convert", "Clip", "-o", back}).status, 0);
    EXPECT_EQ(RunTool({"print", "Clip", "--all", back}).status, 0);
    auto const failed = all(clip + Sample("clip-rate-mismatch.binary") + clip, {"convert", "Clip", "-o", "/dev/full"});
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.output, testing::EndsWith("added\n"));
    EXPECT_THAT(failed.errors, OneLine("Clip wire to domain failed"));
}

TEST(Capture, ReadsHexAndBase64)
{
    auto const printed = RunTool({"print", "Guid", SamplePath("guid.binary")}).output;
    std::tuple<std::string, std::string, std::string> const rows[] = {
        {"hex", "0b000100000001 4100\n", ""},
        {"hex", "0B00 01\t0000 0001 5A\r\n00", ""},
        {"hex", "0b0", "holds no hex text: it ends within a byte"},
        {"hex", "0b 0g", "holds no hex text: its byte 4 is no digit"},
        {"hex", "\n", "holds no Guid in the binary protocol: it is empty"},
        {"base64", "CwABAAAAAUEA", ""},
        {"base64", "CwABAAAAAkFC\nAA==\n", ""},
        {"base64", "CwABAAAAA0FCQwA=", ""},
        {"base64", "CwABAAAAAUE", "its digits are no multiple of four"},
        {"base64", "CwABAAAAA0FCQwB=", "it ends within a byte"},
        {"base64", "Cw=BAAAAAUEA", "its byte 2 is no digit"},
        {"base64", "C===", "its byte 1 is no digit"},
        {"bytes", "CwABAAAAAUEA", "it looks like base64 text; --encoding base64 reads that"},
        {"bytes", "0b000100000001\n4100", "it looks like hex text; --encoding hex reads that"},
        {"octal", "", "there is no encoding 'octal'; there are bytes, hex and base64"},
    };
    for (auto const& [encoding, text, refusal] : rows)
    {
        SCOPED_TRACE(encoding + ' ' + text);
        auto const outcome = RunTool({"print", "Guid", "--encoding", encoding}, text);
        if (!refusal.empty())
            ExpectRefused(outcome, refusal);
        else
            EXPECT_THAT(outcome.output, testing::StartsWith("Guid\n  value = \""));
    }
    EXPECT_EQ(RunShell("base64 " + SamplePath("guid.binary") + " | talvo-wire print Guid --encoding base64").output,
              printed);
}

TEST(Capture, SaysWhatAFileLooksLike)
{
    auto const train = Sample("train.binary");
    std::tuple<std::string, std::string, std::string> const rows[] = {
        {"binary", Transcoded("Train", train, "binary", "compact"), "it looks like a Train in the compact protocol"},
        {"json", Framed(Transcoded("Train", train, "binary", "compact")),
         "it looks like a Train in the compact protocol"},
        {"compact", Strict + train, "it looks like a Train in the binary protocol"},
        {"binary", Transcoded("Train", train, "binary", "json"), "it looks like a Train in the json protocol"},
        {"binary", train + train, "it looks like 2 records; --all reads them"},
        {"binary", Framed(train) + Framed(train) + Framed(train), "it looks like 3 records; --all reads them"},
        {"binary", Framed(train).substr(0, 40), " bytes, of which 36 are there"},
        {"binary", Strict + train.substr(0, 40), "it looks like a message header"},
        {"binary", " {\"name\": 1}\n", "it looks like JSON"},
        {"binary", "Hello\n", "it looks like text"},
    };
    for (auto const& [protocol, bytes, appearance] : rows)
        ExpectRefused(RunTool({"print", "Train", "-p", protocol}, bytes), appearance);
    EXPECT_THAT(RunTool({"print", "Train"}, train + "\xff").errors, Not(HasSubstr("looks like")));
}

TEST(Capture, GuessesWhichRecordAFileHolds)
{
    auto const train = Sample("train.binary");
    auto const first = [](std::string const& output)
    {
        auto const start = output.find('\n') + 1;
        return output.substr(start, output.find('\n', start) - start);
    };
    // The samples whose fields no other record has with the same types.
    for (auto const* name : {"Clip clip-two-essences", "Train train", "PlayerState player-state",
                             "Tag tag-unknown-keys", "AnglesGroup angles-group", "Playlist playlist"})
        for (std::string const protocol : {"binary", "compact"})
        {
            auto const record = std::string(name, std::string(name).find(' '));
            auto const file = std::string(name).substr(record.size() + 1) + '.' + protocol;
            auto const best = first(RunTool({"guess", SamplePath(file)}).output);
            EXPECT_THAT(best, AllOf(testing::StartsWith(record + ' '), HasSubstr(' ' + protocol + ' '),
                                    testing::EndsWith("  0")));
        }

    // Records that skip nothing come before those that skip something, whose values are more.
    auto const outcome = RunTool({"guess", "--json"}, "\x0b\0\1\0\0\0\1X\2\0\2\1\x08\0\x63\0\0\0\1\0"s);
    auto const guesses = nlohmann::json::parse(outcome.output);
    ASSERT_GT(guesses.size(), 2U);
    for (std::size_t i = 1; i < guesses.size(); ++i)
    {
        auto const rank = [&](std::size_t const index)
        { return std::pair(guesses[index]["skippedFields"].get<int>(), -guesses[index]["values"].get<int>()); };
        EXPECT_LE(rank(i - 1), rank(i));
    }
    EXPECT_EQ(guesses[0]["record"], "AsciiOrUtf16String");
    EXPECT_EQ(guesses[0]["values"], 2);
    EXPECT_EQ(guesses[0]["skippedFields"], 1);
    EXPECT_THAT(guesses, testing::Contains(nlohmann::json{
                             {"record", "Guid"}, {"protocol", "binary"}, {"values", 1}, {"skippedFields", 2}}));

    // What is around the records counts for nothing, and a record has to fit all of them.
    auto const several = RunTool({"guess", "--all"}, Framed(Strict + train) + Framed(Strict + train));
    EXPECT_THAT(first(several.output), testing::MatchesRegex("Train +binary +[0-9]+ +0"));
    EXPECT_THAT(several.errors, OneLine("2 records in frames, after message headers"));
    auto const mixed = RunTool({"guess", "--all"}, train + Guid('A'));
    EXPECT_THAT(mixed.output, Not(HasSubstr("\nGuid ")));

    ExpectRefused(RunTool({"guess", "-p", "compact", SamplePath("train.binary")}), "no record fits its bytes");
    ExpectRefused(RunTool({"guess"}, "Hello\n"), "standard input: no record fits its bytes; it looks like text");
    ExpectRefused(RunTool({"guess"}, train + train), "it looks like 2 records; --all reads them");
    ExpectRefused(RunTool({"guess"}), "no record fits its bytes");
}

} // namespace

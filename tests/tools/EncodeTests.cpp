#include "records/RecordFiller.h"
#include "records/RecordType.h"
#include "tests/tools/Tool.h"
#include "tools/Encoder.h"
#include "tools/Protocols.h"

#include <fstream>
#include <sstream>
#include <string>
#include <utility>

namespace
{

using namespace std::string_literals;
using Talvo::Records::RecordFiller;

/// What encode makes of what print --json writes.
std::string ThereAndBack(std::string const& record, std::string const& bytes)
{
    auto const json = RunTool({"print", "--json", record}, bytes);
    EXPECT_EQ(json.status, 0) << json.errors;
    auto const back = RunTool({"encode", "-o", "-"}, json.output);
    EXPECT_EQ(back.status, 0) << back.errors;
    return back.output;
}

TEST(Encode, GivesEveryByteOfEveryRecordBack)
{
    for (auto const& type : Talvo::Records::RecordTypes())
        for (auto filler : {RecordFiller(), RecordFiller::Wide(), RecordFiller::Zeros()})
        {
            auto const record = type.make();
            record->Read(filler);
            auto const bytes = Encode(*record, Talvo::Tools::Protocol::Binary);
            std::istringstream json(RunTool({"print", "--json", std::string(type.name)}, bytes).output);
            EXPECT_EQ(Talvo::Tools::ReadJsonRecord(json).bytes, bytes) << type.name;
        }
}

TEST(Encode, GivesRecordsBackThatHaveSomeFieldsOnly)
{
    std::ifstream samples(SamplePath("samples.txt"));
    std::string file, record;
    while (samples >> file >> record)
    {
        if (!file.ends_with(".binary")) continue;
        SCOPED_TRACE(file);
        // Entries of maps and sets come back in the order of their keys.
        auto const bytes = Sample(file);
        auto const back = ThereAndBack(record, bytes);
        EXPECT_EQ(back.size(), bytes.size());
        EXPECT_EQ(RunTool({"print", record}, back).output, RunTool({"print", record}, bytes).output);
        EXPECT_EQ(ThereAndBack(record, back), back);
    }

    // Keys that the path has only the start of, two of them the same one; a key with quotes and brackets; one without field.
    auto const entry = [](std::string const& key, std::string const& value)
    { return "\x0b\0\1"s + Number(key.size()) + key + '\0' + value; };
    auto const longKey = std::string(64, 'k');
    auto const map = "\x0d\0\2\x0c\x0c\0\0\0\5"s + "\0\0"s + entry("\"]\\x[\x1b", "\x0b\0\1\0\0\0\1v\0"s) +
                     entry(longKey + "A", "\0"s) + entry(longKey + "B", "\x0b\0\1\0\0\0\0\0"s) +
                     entry(longKey + "\xff" + std::string(5000, '"'), "\0"s) + '\0';
    EXPECT_EQ(ThereAndBack("ChainCommandParams", map), map);
    EXPECT_EQ(ThereAndBack("Guid", "\0"s), "\0"s);

    // Several, and another protocol.
    auto const train = Sample("train.binary");
    auto const json = RunTool({"print", "Train", "--json", "--all"}, train + train).output;
    EXPECT_EQ(RunTool({"encode", "-o", "-"}, json).output, train + train);
    EXPECT_EQ(
        RunTool({"encode", "-o", "-", "--to", "compact"}, RunTool({"print", "Train", "--json"}, train).output).output,
        Transcoded("Train", train, "binary", "compact"));
}

TEST(Encode, RefusesWhatNoRecordHolds)
{
    auto const at = [](std::string const& path, std::string const& value)
    { return R"({"path":")" + path + R"(","value":)" + value + '}'; };
    auto const clip = [](std::string const& values) { return R"({"record":"Clip","values":[)" + values + "]}"; };
    std::pair<std::string, std::string> const rows[] = {
        {"", "holds no JSON: it is empty"},
        {"{", "holds no JSON: it is not valid at byte"},
        {"{} x", "its JSON has no 'record'"},
        {"[]", "its JSON: "},
        {"3", "its JSON: "},
        {R"({"values":[]})", "values: 'record' has to come before"},
        {R"({"record":"Clip"})", "its JSON has no 'values'"},
        {R"({"record":"Clyp"})", "record: there is no record 'Clyp'"},
        {R"({"record":7})", "record: it is of another type"},
        {R"({"record":"Clip","record":"Clip"})", "record: it is there twice"},
        {R"({"record":"Clip","more":1})", "more: there is no such member"},
        {R"({"record":"Clip","values":{}})", "values: no array or object stands here"},
        {clip("1"), "values[0]: an object belongs here"},
        {clip("{}"), "values[0]: it has no 'path'"},
        {clip(R"({"path":"umId"})"), "values[0]: it takes a 'value' or a 'key'"},
        {clip(at("umId", "\"A\"") + ',' + at("camera", "2147483648")),
         "values[1].value: it takes a number from -2147483648 to 2147483647"},
        {clip(at("userBits[0]", "-32769")), "values[0].value: it takes a number from -32768 to 32767"},
        {clip(at("sequence", "9223372036854775808")), "values[0].value: it is larger than any number"},
        {clip(at("sequence", "1.5")), "values[0].value: 1.5 is no whole number"},
        {clip(at("sequence", "\"1\"")), "values[0].value: it takes a number from -9223372036854775808"},
        {clip(at("isDual", "1")), "values[0].value: it takes true or false"},
        {clip(at("umId", "null")), "values[0].value: null stands for no value"},
        {clip(at("umId", "\"\u0100\"")), "values[0].value: a character is beyond U+00FF"},
        {clip(at("umId", "[1]")), "values[0].value: only an empty object or array is a value"},
        {clip(at("keywords", "{}")), "values[0].value: it takes elements, or [] for none"},
        {clip(at("name", "[]")), "values[0].value: it takes the values of a record"},
        {clip(at("colour", "1")), "values[0].path: Clip has no field 'colour'"},
        {clip(at("name.size", "1")), "values[0].path: AsciiOrUtf16String has no field 'size'"},
        {clip(at("umId.data", "1")), "values[0].path: umId takes a string, it has nothing inside"},
        {clip(at("keywords[1].data", "\"A\"")), "values[0].path: element 1 of keywords comes where 0 should"},
        {clip(at("keywords[x].data", "\"A\"")), "values[0].path: 'x' is no number of an element"},
        {clip(at("keywords.data", "\"A\"")), "values[0].path: '.data' is no place in a list, set or map"},
        {clip(at("umId", "\"A\"") + ',' + at("umId", "\"B\"")), "values[1].path: 'umId' of Clip is there twice"},
        {clip(at("name.data", "\"A\"") + ',' + at("umId", "\"B\"") + ',' + at("name.isUtf16", "true")),
         "values[2].path: 'name' of Clip is there twice, or in pieces"},
        {clip(at("name.data", "\"A\"") + ',' + at("name", "{}")), "values[1].path: name has values already"},
        {clip(R"({"path":"umId","key":"A"})"), "values[0].key: umId is no entry of a map"},
        {R"({"record":"AnglesGroup","values":[]})", "lacks the field 'id', which is required"},
        {R"({"record":"Tag","values":[{"path":"properties[A].value","value":"A"}]})", "'A' is no number of a key"},
        {R"({"record":"ChainCommandParams","values":[{"path":"players[\"A...\" (70 bytes)]","value":{}}]})",
         "values[0].path: the key"},
        {R"({"record":"ChainCommandParams","values":[{"path":"players[\"A...\" (70 bytes)]","key":"A"}]})",
         "values[0].key: it is none that begins with"},
        {R"({"record":"ChainCommandParams","values":[{"path":"players[\"\\q\"]","value":{}}]})", "is no text of a key"},
        {R"({"record":"Guid","values":[]} {"record":"Guid","values":[3]})", "standard input, record 1: values[0]"},
        {R"({"record":"\u001b[m"})", R"('\x1b[m')"},
        {std::string(100'000, '['), "its JSON: "},
    };
    for (auto const& [json, text] : rows)
    {
        SCOPED_TRACE(json.substr(0, 200));
        ExpectRefused(RunTool({"encode", "-o", "-"}, json), text);
    }
    ExpectRefused(RunTool({"encode"}, clip("")), "--output is required");
}

TEST(Encode, TakesMemoryInProportionToTheFile)
{
    if (TALVO_SANITIZED) GTEST_SKIP() << "a sanitizer takes memory of its own";
    auto clips = "\x0f\0\3\x0c\0\0\3\xe8"s;
    for (int i = 0; i < 1000; ++i) clips += Sample("clip-two-essences.binary");
    auto const json = RunTool({"print", "GetClipsCommandReply", "--json"}, clips + '\0').output;
    auto const outcome = RunTool({"encode", "-o", "/dev/null"}, json);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_LT(outcome.peakKilobytes, static_cast<long>(32 * 1024 + 6 * json.size() / 1024));
}

} // namespace

#include "records/RecordFiller.h"
#include "records/RecordType.h"
#include "tests/tools/Tool.h"
#include "tools/Encoder.h"
#include "tools/Protocols.h"

#include <sstream>
#include <string>

namespace
{

using namespace std::string_literals;
using Talvo::Records::RecordFiller;

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

TEST(Encode, GivesKeysBackThatPathsShorten)
{
    // A key without fields, one with quotes and brackets, and three of which the path has only the start.
    auto const entry = [](std::string const& key, std::string const& value)
    { return "\x0b\0\1"s + Number(key.size()) + key + '\0' + value; };
    auto const longKey = std::string(64, 'k');
    auto const map = "\x0d\0\2\x0c\x0c\0\0\0\5"s + "\0\0"s + entry("\"]\\x[\x1b", "\x0b\0\1\0\0\0\1v\0"s) +
                     entry(longKey + "A", "\0"s) + entry(longKey + "B", "\x0b\0\1\0\0\0\0\0"s) +
                     entry(longKey + "\xff" + std::string(5000, '"'), "\0"s) + '\0';
    auto const json = RunTool({"print", "--json", "ChainCommandParams"}, map);
    EXPECT_EQ(RunTool({"encode", "-o", "-"}, json.output).output, map);
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

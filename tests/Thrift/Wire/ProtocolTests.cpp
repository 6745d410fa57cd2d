#include "tests/Thrift/Wire/Differential.h"

#include "Thrift/Wire/BinaryWriter.h"
#include "generated/Clip_types.h"
#include "generated/DialCommandParams_types.h"
#include "generated/GetChannelsCommandReply_types.h"
#include "generated/GetClipsCommandReply_types.h"
#include "records/RecordFiller.h"
#include "tests/Thrift/Samples.h"
#include "tests/Thrift/WireBytes.h"

#include <gmock/gmock.h>
#include <thrift/protocol/TProtocolException.h>
#include <thrift/transport/TTransportException.h>

#include <limits>
#include <random>
#include <string>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift;
using apache::thrift::protocol::TProtocolException;
using apache::thrift::transport::TTransportException;
using Records::RecordFiller;
using testing::HasSubstr;

using WireClip = Data::Clips::Generated::Clip;

/// Returns records that are new, full, full of other values, and full of zeros.
std::vector<std::unique_ptr<Records::WireRecord>> Variants(Records::RecordType const& type)
{
    std::vector<std::unique_ptr<Records::WireRecord>> records;
    records.push_back(Filled(type, RecordFiller()));
    records.push_back(Filled(type, RecordFiller::Wide()));
    records.push_back(Filled(type, RecordFiller::Zeros()));
    return records;
}

std::string WrittenOwn(Records::WireRecord const& record)
{
    Wire::BinaryWriter writer;
    record.Write(writer);
    return std::string(writer.Text());
}

TEST(BinaryProtocol, WritesAndReadsAllRecordsLikeThrift)
{
    for (auto const& type : Records::RecordTypes())
        for (auto const& record : Variants(type))
        {
            auto const bytes = WrittenOwn(*record);
            EXPECT_EQ(bytes, WrittenBytes(*record, *Protocols()[0])) << type.name;
            auto const read = ReadOwn(bytes, ReaderOf(&type));
            EXPECT_TRUE(read && read->ends_with(" 0")) << type.name;
            EXPECT_EQ(read, ReadPeer(bytes, ReaderOf(&type))) << type.name;
        }
}

TEST(BinaryProtocol, AcceptsAndRejectsTheSameBytesAsThrift)
{
    std::mt19937 random(1);
    auto const any = [&random](std::size_t const count) { return random() % count; };
    // Types of values and of containers, small sizes, the bounds and the values just above them, and negative sizes.
    static constexpr std::array<unsigned char, 14> Bytes{0, 1, 2, 8, 9, 10, 11, 12, 13, 15, 16, 100, 101, 255};
    std::size_t accepted = 0;
    std::size_t refused = 0;
    for (auto const& type : Records::RecordTypes())
        for (auto const& record : Variants(type))
        {
            auto const whole = WrittenOwn(*record);
            for (int i = 0; i < 40; ++i)
            {
                auto bytes = whole;
                for (auto changes = any(3); changes > 0; --changes)
                    bytes[any(bytes.size())] = static_cast<char>(Bytes[any(Bytes.size())]);
                if (any(4) == 0) bytes.resize(any(bytes.size()));
                auto const read = ReadOwn(bytes, ReaderOf(&type));
                ASSERT_EQ(read, ReadPeer(bytes, ReaderOf(&type))) << type.name << ' ' << Records::Escaped(bytes);
                ++(read ? accepted : refused);
            }
        }
    EXPECT_GT(accepted, 2000U);
    EXPECT_GT(refused, 2000U);
}

TEST(BinaryProtocol, SkipsTheSameFieldsAsThrift)
{
    // A field with an id that no record has.
    auto const of = [](char const type, std::string const& value)
    { return type + std::string(1, '\x7f') + std::string(1, '\0') + value + std::string(1, '\0'); };
    std::string const large("\0\0\0\x64", 4), tooLarge("\0\0\0\x65", 4), negative("\xff\xff\xff\xff", 4);
    auto const record = [&of](int depth)
    {
        std::string nested(1, '\0');
        for (; depth > 0; --depth) nested = of('\x0c', nested);
        return nested;
    };
    std::vector<std::string> values;
    for (char type = 0; type < 20; ++type)
    {
        for (std::size_t size : {0U, 1U, 2U, 4U, 8U, 16U}) values.push_back(of(type, std::string(size, '\0')));
        for (char element = 0; element < 20; ++element)
            for (auto const& size : {std::string(4, '\0'), std::string("\0\0\0\2", 4)})
            {
                values.push_back(of('\x0f', element + size + std::string(16, '\0')));
                values.push_back(of('\x0e', element + size + std::string(16, '\0')));
                values.push_back(of('\x0d', std::string(1, type) + element + size + std::string(32, '\0')));
            }
    }
    for (auto const& size : {large, tooLarge, negative})
    {
        values.push_back(of('\x0f', '\x02' + size + std::string(200, '\0')));
        values.push_back(of('\x0e', '\x02' + size + std::string(200, '\0')));
        values.push_back(of('\x0d', "\x02\x02" + size + std::string(200, '\0')));
        values.push_back(of('\x0d', "\x02\x02" + size + std::string(199, '\0')));
        values.push_back(of('\x0b', size + std::string(200, '\0')));
    }
    for (std::string const size : {"\x03\xe8", "\x03\xe9"})
        values.push_back(of('\x0b', std::string(2, '\0') + size + std::string(1002, '\0')));
    for (int depth = 5; depth < 10; ++depth) values.push_back(record(depth));

    auto const& type = Records::RecordTypes().front();
    std::size_t accepted = 0;
    for (auto const& value : values)
    {
        EXPECT_TRUE(ReadAlike(value, &type)) << Records::Escaped(value);
        accepted += ReadOwn(value, ReaderOf(&type)) ? 1 : 0;
    }
    EXPECT_GT(accepted, 100U);
    EXPECT_LT(accepted, values.size() - 100);
}

TEST(BinaryProtocol, WritesAndReadsMessageHeaders)
{
    using apache::thrift::protocol::T_REPLY;
    for (auto const header : {Wire::BinaryWriter::Header::Strict, Wire::BinaryWriter::Header::Old})
    {
        Wire::BinaryWriter writer(header);
        writer.writeMessageBegin("GetClips", T_REPLY, -5);
        auto const bytes = std::string(writer.Text());

        auto const buffer = std::make_shared<apache::thrift::transport::TMemoryBuffer>();
        apache::thrift::protocol::TBinaryProtocol peer(buffer, 0, 0, false,
                                                       header == Wire::BinaryWriter::Header::Strict);
        peer.writeMessageBegin("GetClips", T_REPLY, -5);
        EXPECT_EQ(bytes, buffer->getBufferAsString());
        EXPECT_EQ(ReadOwn(bytes, ReaderOf(nullptr)), "GetClips 2 -5 0");
        for (std::size_t size = 0; size < bytes.size(); ++size)
            EXPECT_FALSE(ReadOwn(bytes.substr(0, size), ReaderOf(nullptr))) << size;
    }
    // Headers with an unknown message type.
    for (auto const& bytes :
         {std::string("\0\0\0\4name\xe9\0\0\0\1", 13), std::string("\x80\1\0\xe9\0\0\0\4name\0\0\0\1", 16)})
    {
        EXPECT_TRUE(ReadOwn(bytes, ReaderOf(nullptr)));
        EXPECT_TRUE(ReadAlike(bytes, nullptr));
    }
    EXPECT_FALSE(ReadOwn(std::string("\x80\x02\x00\x01\x00\x00\x00\x00\x00\x00\x00\x00", 12), ReaderOf(nullptr)));
}

TEST(BinaryProtocol, WritesFramesAndTakesFramesFromBytes)
{
    Wire::BinaryWriter writer;
    writer.writeByte(7);
    auto const start = writer.BeginFrame();
    writer.writeString("text");
    writer.EndFrame(start);
    EXPECT_EQ(writer.Text(), std::string("\7\0\0\0\x8\0\0\0\4text", 13));

    auto bytes = writer.Bytes().subspan(1);
    EXPECT_EQ(Wire::TakeFrame(bytes, {.message = 8}).size(), 8U);
    EXPECT_TRUE(bytes.empty());

    for (auto const& [frame, text] : {std::pair(std::string("\0\0\0\x9text", 8), "9 bytes exceeds the bound of 8"),
                                      std::pair(std::string("\0\0\0\x5text", 8), "the bytes end within a frame"),
                                      std::pair(std::string("\0\0\0", 3), "the bytes end within a frame"),
                                      std::pair(std::string("\xff\0\0\0text", 8), "a frame has a negative size")})
    {
        auto rest = BytesOf(frame);
        try
        {
            Wire::TakeFrame(rest, {.message = 8});
            ADD_FAILURE() << text;
        }
        catch (apache::thrift::TException const& error)
        {
            EXPECT_THAT(error.what(), HasSubstr(text));
        }
        EXPECT_EQ(rest.size(), frame.size()) << "a bad frame must not be taken";
    }
}

/// Returns the message of the exception that reading a record within the bounds throws, or an empty text.
template<typename TRecord>
std::string Refusal(TRecord const& record, Wire::Bounds const& bounds)
{
    Wire::BinaryWriter writer;
    record.write(&writer);
    try
    {
        Wire::BinaryReader reader(writer.Bytes(), bounds);
        TRecord read;
        read.read(&reader);
        return read == record ? "" : "was read as a different record";
    }
    catch (TProtocolException const& error)
    {
        EXPECT_EQ(error.getType(), TProtocolException::SIZE_LIMIT);
        return error.what();
    }
}

Commands::Generated::DialCommandParams Dial(std::vector<std::string> const& players)
{
    Commands::Generated::DialCommandParams dial;
    for (auto const& player : players)
    {
        Corvane::Data::Generated::Guid guid;
        guid.__set_value(player);
        dial.players.insert(guid);
    }
    dial.__isset.players = true;
    return dial;
}

TEST(BinaryReader, NamesTheBoundThatIsExceeded)
{
    WireClip clip;
    clip.umId = std::string(100, 'a');
    clip.userBits.resize(50);
    Wire::BinaryWriter writer;
    clip.write(&writer);
    auto const size = static_cast<std::uint32_t>(writer.Size());
    auto const memory = 100 + 4 * sizeof(void*) + 50 * sizeof(std::int16_t);
    auto const dial = Dial({"A", "B", "C"});

    EXPECT_EQ(Refusal(clip, {.message = size, .text = 100, .elements = 50}), "");
    EXPECT_EQ(Refusal(clip, {.message = size - 1}),
              "a message of " + std::to_string(size) + " bytes exceeds the bound of " + std::to_string(size - 1));
    EXPECT_EQ(Refusal(clip, {.text = 99}), "a string of 100 bytes exceeds the bound of 99");
    EXPECT_EQ(Refusal(clip, {.elements = 49}), "a list of 50 elements exceeds the bound of 49");
    EXPECT_EQ(Refusal(dial, {.elements = 0, .entries = 3}), "");
    EXPECT_EQ(Refusal(dial, {.entries = 2}), "a set of 3 entries exceeds the bound of 2");
    EXPECT_THAT(Refusal(clip, {.memory = 200, .memoryPerByte = 0}),
                "a message of " + std::to_string(memory) + " bytes in memory exceeds the bound of 200");
    EXPECT_EQ(Refusal(clip, {.memory = memory, .memoryPerByte = 0}), "");
    EXPECT_EQ(Refusal(clip, {.memory = std::numeric_limits<std::uint64_t>::max()}), "");
    EXPECT_EQ(Refusal(clip, {.memoryPerByte = std::numeric_limits<std::uint64_t>::max()}), "");
}

TEST(BinaryReader, CountsTheMemoryOfElements)
{
    Commands::Generated::GetClipsCommandReply clips;
    clips.clips.resize(10);
    auto const ofClips = 10 * sizeof(WireClip);
    EXPECT_EQ(Refusal(clips, {.memory = ofClips, .memoryPerByte = 0}), "");
    EXPECT_THAT(Refusal(clips, {.memory = ofClips - 1, .memoryPerByte = 0}), HasSubstr("bytes in memory"));

    auto const dial = Dial({"A", "B", "C"});
    auto const ofPlayers = 3 * (sizeof(Corvane::Data::Generated::Guid) + 6 * sizeof(void*));
    EXPECT_EQ(Refusal(dial, {.memory = ofPlayers, .memoryPerByte = 0}), "");
    EXPECT_THAT(Refusal(dial, {.memory = ofPlayers - 1, .memoryPerByte = 0}), HasSubstr("bytes in memory"));
}

/// Returns `count` identifiers of sixteen bytes with equal hashes: 1 more in one byte is balanced by 31 less in the
/// next.
std::vector<std::string> Colliding(std::size_t const count)
{
    std::vector<std::string> identifiers;
    for (std::size_t i = 0; i < count; ++i)
    {
        std::string identifier(16, '\x40');
        for (std::size_t place = 0, rest = i; place < 8; ++place, rest /= 4)
        {
            identifier[2 * place] = static_cast<char>(0x40 + rest % 4);
            identifier[2 * place + 1] = static_cast<char>(0xC0 - 31 * (rest % 4));
        }
        identifiers.push_back(identifier);
    }
    return identifiers;
}

TEST(BinaryReader, RejectsLargeSetsAndMapsOfCollidingChannels)
{
    std::vector<std::string> ordinary;
    for (int i = 0; i < 2000; ++i)
    {
        std::string identifier(16, '\0');
        identifier[3] = static_cast<char>(i % 256);
        identifier[7] = static_cast<char>(i / 256);
        ordinary.push_back(identifier);
    }
    Wire::Bounds const raised{.entries = 10'000, .memory = 100'000'000};
    EXPECT_EQ(Refusal(Dial(ordinary), raised), "");
    EXPECT_EQ(Refusal(Dial(Colliding(1000)), {}), "");
    EXPECT_EQ(Refusal(Dial(Colliding(2000)), raised), "too many of 2000 channels have colliding identifiers");

    Commands::Generated::GetChannelsCommandReply reply;
    for (auto const& player : Dial(Colliding(2000)).players) reply.players[player];
    EXPECT_EQ(Refusal(reply, raised), "too many of 2000 channels have colliding identifiers");
}

TEST(BinaryReader, ReportsInvalidBytes)
{
    auto const refusal = [](std::string const& bytes) -> std::string
    {
        try
        {
            Wire::BinaryReader reader(BytesOf(bytes));
            WireClip clip;
            clip.read(&reader);
            return "";
        }
        catch (apache::thrift::TException const& error)
        {
            return error.what();
        }
    };
    EXPECT_EQ(refusal(""), "the bytes end within the record");
    EXPECT_EQ(refusal(std::string("\x0b\0\1\0\0\0\5umId", 11)), "the bytes end within the record");
    EXPECT_EQ(refusal(std::string("\x0f\0\x8\6\0\0\0\5", 8)), "the bytes end within the record");
    EXPECT_EQ(refusal(std::string("\x0b\0\1\xff\xff\xff\xff", 7)), "a string has a negative size");
    EXPECT_EQ(refusal(std::string("\x0f\0\x8\6\x80\0\0\0", 8)), "a list has a negative size");
    EXPECT_EQ(refusal(std::string("\x10\0\1", 3)), "a value has the unknown type 16");
    EXPECT_EQ(refusal(std::string("\1\0\x63", 3)), "a value has the type 1, which has no values");
}

TEST(BinaryReader, ReadsConsecutiveRecords)
{
    Wire::BinaryWriter writer;
    Dial({"A"}).write(&writer);
    Dial({"B", "C"}).write(&writer);
    Wire::BinaryReader reader(writer.Bytes());
    for (std::size_t const players : {1U, 2U})
    {
        Commands::Generated::DialCommandParams dial;
        dial.read(&reader);
        EXPECT_EQ(dial.players.size(), players);
    }
    EXPECT_TRUE(reader.Rest().empty());
}

TEST(BinaryWriter, GrowsAndTruncates)
{
    Wire::BinaryWriter writer;
    std::string expected;
    for (std::size_t size : {1U, 5U, 1000U, 3U, 100'000U, 1'000'000U})
    {
        std::string const text(size, static_cast<char>('a' + size % 7));
        writer.writeI64(static_cast<std::int64_t>(size));
        writer.writeString(text);
        auto const digits = std::string("\0\0\0\0", 4) + static_cast<char>(size >> 24) + static_cast<char>(size >> 16) +
                            static_cast<char>(size >> 8) + static_cast<char>(size);
        expected += digits + digits.substr(4) + text;
    }
    EXPECT_EQ(writer.Text(), expected);
    writer.Truncate(13);
    EXPECT_EQ(writer.Text(), expected.substr(0, 13));
    writer.Truncate(100);
    EXPECT_EQ(writer.Size(), 13U);
}

} // namespace
} // namespace Talvo::Tests

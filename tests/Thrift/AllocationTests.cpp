#include "tests/Thrift/Data/Clips/Values.h"

#include "Domain/CorvaneData/OperationStatus.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Data/FromOperationStatus.h"
#include "Thrift/Data/ToOperationStatus.h"
#include "Thrift/Wire/Codec.h"
#include "TimePoints/TalvoTimeCodeFormatter.h"
#include "TimePoints/TalvoTimeCodeParser.h"
#include "TimePoints/TimeCodeText.h"
#include "generated/Clip_types.h"
#include "generated/GetClipsCommandReply_types.h"
#include "generated/OperationStatus_types.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <span>
#include <string>

namespace
{

std::size_t allocationCount = 0;
std::size_t allocatedBytes = 0;

} // namespace

// Replaces the operators of the whole program, including the library.
void* operator new(std::size_t const size)
{
    ++allocationCount;
    allocatedBytes += size;
    if (auto* const memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* const memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* const memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data;

std::size_t Allocations(auto const& work)
{
    auto const before = allocationCount;
    work();
    return allocationCount - before;
}

TEST(Allocations, ClipToWireAllocatesOnlyItsHeapMembers)
{
    auto const clip = FullClip();
    Clips::Generated::Clip wire;
    auto const convert = [&clip, &wire] { ASSERT_TRUE(Clips::ClipToThriftConverter().To(clip, wire).success); };

    EXPECT_EQ(Allocations(convert), 6) << "name, varId, keywords, userBits and two time codes";
    wire.userBits.clear(); // a conversion appends to them
    EXPECT_EQ(Allocations(convert), 0);
}

TEST(Allocations, ClipFromWireAllocatesNothing)
{
    Clips::Generated::Clip wire;
    ASSERT_TRUE(Clips::ClipToThriftConverter().To(FullClip(), wire).success);

    EXPECT_EQ(Allocations(
                  [&wire]
                  {
                      auto clip = NtscClip();
                      ASSERT_TRUE(Clips::ThriftToClipConverter().To(wire, clip).success);
                  }),
              0);
}

TEST(Allocations, TimeCodeAllocatesOnlyItsText)
{
    std::string const text = "2024-02-29T23:58:57;28@30";
    TimePoints::TimeCode timeCode;
    EXPECT_EQ(Allocations([&] { timeCode = TimePoints::TalvoTimeCodeParser().Parse(text); }), 0);
    std::string const bad = "2024-02-30T23:58:57;28@30";
    std::string used(text.size(), 'x');
    EXPECT_EQ(Allocations(
                  [&]
                  {
                      TimePoints::TalvoTimeCodeParser const parser;
                      ASSERT_TRUE(parser.IsStringFormatValid(text) && parser.TryParse(text).first);
                      ASSERT_FALSE(parser.IsStringFormatValid(bad) || TimePoints::ReadTimeCode(bad));
                      TimePoints::WriteTimeCode(timeCode, used);
                      ASSERT_EQ(used, text);
                  }),
              0);

    // An exception would allocate its text.
    for (std::string const& wrong : {bad, std::string("2024-02-29T23:58:57;28"), text + "000000000"})
        EXPECT_EQ(Allocations([&] { ASSERT_FALSE(TimePoints::TalvoTimeCodeParser().TryParse(wrong).first); }), 0)
            << wrong;

    std::string formatted;
    EXPECT_EQ(Allocations([&] { formatted = TimePoints::TalvoTimeCodeFormatter().Format(timeCode); }), 1);
    EXPECT_EQ(formatted, text);
}

TEST(Allocations, SuccessAllocatesNothing)
{
    Corvane::Data::OperationStatus status;
    Corvane::Data::Generated::OperationStatus wire;
    EXPECT_EQ(Allocations(
                  [&]
                  {
                      ASSERT_TRUE(OperationStatusToThriftConverter().To(status, wire).success);
                      ASSERT_TRUE(ThriftToOperationStatusConverter().To(wire, status).success);
                  }),
              0);
}

TEST(Allocations, CodecWithReusedObjectsAllocatesNothing)
{
    namespace Wire = Corvane::Zelmar::Serialization::Thrift::Wire;
    auto const clip = FullClip();
    auto back = NtscClip();
    Clips::Generated::Clip record;
    Wire::BinaryWriter writer;
    auto const encode = [&]
    {
        writer.Truncate();
        ASSERT_TRUE(Wire::Encode(Clips::ClipToThriftConverter(), clip, record, writer).Success());
    };
    auto const decode = [&]
    { ASSERT_TRUE(Wire::Decode(Clips::ThriftToClipConverter(), writer.Bytes(), record, back).Success()); };
    encode();
    decode();

    EXPECT_EQ(Allocations(encode), 0);
    EXPECT_EQ(Allocations(decode), 0);
}

TEST(Allocations, RejectedMessageAllocatesLittleForTheSizesThatItClaims)
{
    namespace Wire = Corvane::Zelmar::Serialization::Thrift::Wire;
    using Corvane::Zelmar::Serialization::Thrift::Commands::Generated::GetClipsCommandReply;
    std::string const clips("\x0f\0\3\x0c", 4); // a list of records
    for (auto const& message : {
             clips + std::string("\0\0\x20\0", 4) + std::string(0x2001, '\0'), // 8192 complete empty clips
             clips + std::string("\0\1\x86\xa0", 4) + std::string(1000, '\0'), // 100,000 clips
             std::string("\x0c\0\1\x0b\0\1\0\x0f\xff\xff", 10),                // a string of nearly 1 MiB
             std::string("\x0b\0\x63\0\x0f\xff\xff", 7),                       // a skipped string of nearly 1 MiB
             std::string("\x0d\0\x63\x0b\x0b\0\0\x03\xe8", 9),                 // a skipped map of 1000 entries
         })
    {
        auto const before = allocatedBytes;
        try
        {
            GetClipsCommandReply reply;
            Wire::BinaryReader reader(std::span(reinterpret_cast<std::uint8_t const*>(message.data()), message.size()));
            reply.read(&reader);
            ADD_FAILURE() << message.size();
        }
        catch (apache::thrift::TException const&)
        {
        }
        EXPECT_LT(allocatedBytes - before, 2000U) << message.size();
    }
}

} // namespace
} // namespace Talvo::Tests

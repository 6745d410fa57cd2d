#include "tests/Thrift/Data/Clips/Values.h"

#include "Domain/CorvaneData/OperationStatus.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Data/FromOperationStatus.h"
#include "Thrift/Data/ToOperationStatus.h"
#include "TimePoints/TalvoTimeCodeFormatter.h"
#include "TimePoints/TalvoTimeCodeParser.h"
#include "TimePoints/TimeCodeText.h"
#include "generated/Clip_types.h"
#include "generated/OperationStatus_types.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <new>
#include <string>

namespace
{

std::size_t allocationCount = 0;

} // namespace

// Of the whole program, the library included.
void* operator new(std::size_t const size)
{
    ++allocationCount;
    if (auto* const memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* const memory) noexcept
{
    std::free(memory);
}

void operator delete(void* const memory, std::size_t) noexcept
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

TEST(Allocations, OfAClipToTheWireAreItsHeapMembersOnly)
{
    auto const clip = FullClip();
    Clips::Generated::Clip wire;
    auto const convert = [&clip, &wire] { ASSERT_TRUE(Clips::ClipToThriftConverter().To(clip, wire).success); };

    EXPECT_EQ(Allocations(convert), 6) << "name, varId, keywords, userBits and two time codes";
    wire.userBits.clear(); // to which a conversion appends
    EXPECT_EQ(Allocations(convert), 0);
}

TEST(Allocations, OfAClipFromTheWireAreNone)
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

TEST(Allocations, OfATimeCodeAreTheResultOnly)
{
    std::string const text = "2024-02-29T23:58:57;28@30";
    TimePoints::TimeCode timeCode;
    EXPECT_EQ(Allocations([&] { timeCode = TimePoints::TalvoTimeCodeParser().Parse(text); }), 0);
    std::string const bad = "2024-02-30T23:58:57;28@30";
    std::string used = "as long as any time code of ordinary width";
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

TEST(Allocations, OfASuccessAreNone)
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

} // namespace
} // namespace Talvo::Tests

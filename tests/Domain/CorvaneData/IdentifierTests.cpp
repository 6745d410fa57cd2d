#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Clips/Groups/Guid.h"
#include "Domain/CorvaneData/Clips/Guid.h"
#include "Domain/CorvaneData/Clips/UmId.h"
#include "Domain/CorvaneData/Guid.h"
#include "Domain/CorvaneData/Sequences/Guid.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <string>
#include <thread>
#include <unordered_set>
#include <vector>

namespace Talvo::Corvane::Data
{
namespace
{

using testing::ElementsAreArray;

using Bytes = std::array<unsigned char, Guid::Size>;

Bytes BytesOf(Guid const& guid)
{
    Bytes bytes;
    std::copy_n(guid.Bytes(), Guid::Size, bytes.begin());
    return bytes;
}

Guid From(Bytes const& bytes)
{
    return Guid(bytes.data(), Guid::Size);
}

TEST(Guid, HoldsAtMostSixteenBytesAndFillsWithZeros)
{
    std::string const text = "\xFF"
                             "bcdefghijklmnopq"; // seventeen characters
    for (unsigned int const size : {0u, 1u, 15u, 16u, 17u})
    {
        Bytes expected{};
        std::copy_n(text.begin(), std::min(size, Guid::Size), expected.begin());
        EXPECT_EQ(BytesOf(Guid(reinterpret_cast<unsigned char const*>(text.data()), size)), expected) << size;
        EXPECT_EQ(BytesOf(Clips::Guid(text.substr(0, size))), expected) << size;
    }
    EXPECT_EQ(Guid(nullptr, 0), Guid::Empty());
}

TEST(Guid, IsSetThroughTheBaseByDerivedClasses)
{
    auto const writeThroughBase = [](auto guid)
    {
        Guid& base = guid;
        base = From({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
        EXPECT_EQ(sizeof(guid), Guid::Size);
        EXPECT_THAT(BytesOf(guid), ElementsAreArray({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
        EXPECT_FALSE(guid == decltype(guid)());
    };
    writeThroughBase(Clips::Guid());
    writeThroughBase(Clips::Groups::Guid());
    writeThroughBase(Sequences::Guid());
    writeThroughBase(Channels::Guid());
}

TEST(Guid, GeneratesUniqueVersion4FromAnyThread)
{
    std::array<std::vector<std::string>, 4> generated;
    {
        std::vector<std::thread> threads;
        threads.reserve(generated.size());
        for (auto& own : generated)
            threads.emplace_back(
                [&own]
                {
                    for (int i = 0; i < 1000; ++i)
                    {
                        auto const guid = Guid::Generate();
                        own.emplace_back(guid.Bytes(), guid.Bytes() + Guid::Size);
                    }
                });
        for (auto& thread : threads) thread.join();
    }

    std::unordered_set<std::string> distinct;
    for (auto const& own : generated)
        for (auto const& bytes : own)
        {
            distinct.insert(bytes);
            ASSERT_EQ(bytes[6] & 0xF0, 0x40);
            ASSERT_EQ(bytes[8] & 0xC0, 0x80);
        }
    EXPECT_EQ(distinct.size(), 4000u);
}

TEST(ChannelGuid, ReturnsItsPartsAndIsNeverSixteenZeros)
{
    using Type = Channels::Guid::Type;
    constexpr int MinIndex = std::numeric_limits<int>::min();
    constexpr int MaxIndex = std::numeric_limits<int>::max();

    std::unordered_set<Channels::Guid> distinct;
    for (Type const type : {Type::ChannelGuidTypePlayer, Type::ChannelGuidTypeRecorder, Type::ChannelGuidTypeUndefined,
                            Type{-1}, Type{MinIndex}})
        for (int const index : {0, 1, -1, 0x01020384, MinIndex, MaxIndex})
            for (unsigned int const serial : {0u, 1u, 0x81020304u, 0xFFFFFFFFu})
            {
                Channels::Guid const guid(type, index, serial);
                EXPECT_EQ(guid.ChannelIndex(), index);
                EXPECT_EQ(guid.MachineSerial(), serial);
                EXPECT_NE(BytesOf(guid), Bytes{});
                EXPECT_EQ(guid, Channels::Guid(type, index, serial));
                distinct.insert(guid);

                Channels::Guid copy;
                copy = From(BytesOf(guid));
                EXPECT_EQ(copy, guid);
                EXPECT_EQ(copy.ChannelIndex(), index);
            }
    EXPECT_EQ(distinct.size(), 5u * 6 * 4);
    EXPECT_EQ(Channels::Guid(), Channels::Guid(Type::ChannelGuidTypeUndefined, 0, 0));
}

TEST(ChannelGuid, HashesEachByteAsUnsignedIn32Bits)
{
    auto const hashOf = [](Bytes const& bytes)
    {
        Channels::Guid guid;
        guid = From(bytes);
        return std::hash<Channels::Guid>()(guid);
    };
    EXPECT_EQ(hashOf({}), 0u);
    EXPECT_EQ(hashOf({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 255}), 31u + 255);
    EXPECT_EQ(hashOf({2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}), 3273898943u); // 2 * 31^15 + 1, modulo 2^32
}

TEST(UmId, HoldsEightCharactersAndDropsThePreviousText)
{
    Clips::UmId umId;
    EXPECT_STREQ(umId.GetUmId(), "");
    umId.SetUmId("12345678");
    EXPECT_STREQ(umId.GetUmId(), "12345678");
    umId.SetUmId("abcdefghi");
    EXPECT_STREQ(umId.GetUmId(), "abcdefgh");
    umId.SetUmId(umId.GetUmId() + 2);
    EXPECT_STREQ(umId.GetUmId(), "cdefgh");
    umId.SetUmId("xyz");
    EXPECT_STREQ(umId.GetUmId(), "xyz");
    umId.SetUmId("");
    EXPECT_EQ(umId, Clips::UmId());
}

} // namespace
} // namespace Talvo::Corvane::Data

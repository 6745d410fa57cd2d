#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Thrift/Data/Channels/FromLoadBoundary.h"
#include "Thrift/Data/Channels/ToLoadBoundary.h"
#include "generated/LoadBoundary_types.h"
#include "tests/Thrift/Converters.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Channels;
using Corvane::Data::Channels::Boundary;
using Generated::LoadBoundaryType;
using enum Boundary::RelativeTo;
using OfBoundary = Converters<LoadBoundaryToThriftConverter, ThriftToLoadBoundaryConverter>;

Boundary const Before = Boundary::RelativeBoundary(RelativeToOppositeClipBoundary, 77);

TEST(LoadBoundaryConversion, ReusedWireRecordKeepsTheOtherMember)
{
    auto const unknown = Boundary::RelativeBoundary(static_cast<Boundary::RelativeTo>(3), 6);
    auto wire = OfBoundary::Sent(unknown, OfBoundary::Sent(Boundary::AbsoluteBoundary({5})));
    auto const& specialized = wire.specializedLoadBoundary;
    EXPECT_TRUE(specialized.__isset.absoluteLoadBoundary && specialized.__isset.relativeLoadBoundary);
    EXPECT_EQ(specialized.relativeLoadBoundary.fieldCount, 6);
    EXPECT_EQ(wire.type, LoadBoundaryType::Absolute); // an unknown reference keeps the type

    auto const absolute = OfBoundary::Received(wire, Before);
    EXPECT_EQ(absolute, Boundary::AbsoluteBoundary({5}));
    EXPECT_EQ(absolute.FieldCount(), 0u);
    wire = OfBoundary::Sent(Before, wire);
    EXPECT_EQ(specialized.absoluteLoadBoundary.timepoint, 5);
    EXPECT_EQ(OfBoundary::Received(wire, Boundary::AbsoluteBoundary({5})), Before);
    wire = OfBoundary::Sent(Boundary::AbsoluteBoundary({8}), wire);
    EXPECT_TRUE(specialized.__isset.relativeLoadBoundary);
    EXPECT_EQ(specialized.relativeLoadBoundary.fieldCount, std::int64_t{Before.FieldCount()});
}

TEST(LoadBoundaryConversion, TypeDecidesWhichMemberIsNeeded)
{
    constexpr auto Least = std::numeric_limits<std::int32_t>::min();
    struct Row
    {
        char const* rule;
        std::int32_t type;
        bool hasAbsolute;
        bool hasRelative;
        std::int64_t fieldCount;
        Boundary expected; ///< `Before` if the record is rejected.
    };
    Row const rows[] = {
        {"absolute without its member", 0, false, true, 4, Before},
        {"relative without its member", 1, true, false, 4, Before},
        {"unknown without its member", 7, true, false, 4, Before},
        {"neither member", 0, false, false, 4, Before},
        {"both members: absolute", 0, true, true, 4, Boundary::AbsoluteBoundary({3})},
        {"both members: relative", 1, true, true, 4,
         Boundary::RelativeBoundary(RelativeToCorrespondingClipBoundary, 4)},
        {"type 2", 2, false, true, 4, Boundary::RelativeBoundary(RelativeToOppositeClipBoundary, 4)},
        {"unknown type", 7, false, true, 4, Boundary::RelativeBoundary(RelativeToOppositeLoadBoundary, 4)},
        {"negative type", -1, false, true, 4, Boundary::RelativeBoundary(RelativeToOppositeLoadBoundary, 4)},
        {"least type", Least, false, true, 4, Boundary::RelativeBoundary(RelativeToOppositeLoadBoundary, 4)},
        {"high word is lost", 1, false, true, 0x100000005,
         Boundary::RelativeBoundary(RelativeToCorrespondingClipBoundary, 5)},
        {"a negative count is a large one", 1, false, true, -1,
         Boundary::RelativeBoundary(RelativeToCorrespondingClipBoundary, 0xFFFFFFFF)},
    };
    for (auto const& row : rows)
    {
        SCOPED_TRACE(row.rule);
        Generated::LoadBoundary wire;
        wire.type = static_cast<LoadBoundaryType::type>(row.type);
        wire.__isset.type = wire.__isset.specializedLoadBoundary = true;
        auto& specialized = wire.specializedLoadBoundary;
        specialized.absoluteLoadBoundary.timepoint = 3; // the flags inside the members are ignored
        specialized.relativeLoadBoundary.fieldCount = row.fieldCount;
        specialized.__isset.absoluteLoadBoundary = row.hasAbsolute;
        specialized.__isset.relativeLoadBoundary = row.hasRelative;

        auto boundary = Before;
        EXPECT_EQ(OfBoundary::Told(wire, boundary), row.expected == Before ? "LoadBoundary is empty" : "");
        EXPECT_EQ(boundary, row.expected);

        boundary = Before;
        wire.__isset.type = false;
        EXPECT_EQ(OfBoundary::Told(wire, boundary), "LoadBoundary is empty");
        wire.__isset.type = true;
        wire.__isset.specializedLoadBoundary = false;
        EXPECT_FALSE(OfBoundary::Told(wire, boundary).empty());
        EXPECT_EQ(boundary, Before);
    }
}

} // namespace
} // namespace Talvo::Tests

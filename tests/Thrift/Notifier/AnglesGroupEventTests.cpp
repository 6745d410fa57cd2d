#include "tests/Thrift/Notifier/Values.h"

#include "Domain/CorvaneData/Notification/AnglesGroupCreationFailedEventArgs.h"
#include "tools/records/Notifier.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Notifier;
using namespace Corvane::Notification;
using Corvane::Data::Clips::Camera;
using Corvane::Data::Clips::PreferentialCamera;

namespace Clips = Corvane::Data::Clips;

Clips::Groups::AnglesGroup GroupOf(char const id)
{
    Clips::Groups::AnglesGroup group(Id<Clips::Groups::Guid>(id));
    group.AddAngle(id == 'f' ? Camera::B : Camera::Z, Id<Clips::Guid>(id), PreferentialCamera::Primary);
    return group;
}

/// `TContent` is what the event holds: a group or the identifier of one.
template<typename TContent, typename TToWire, typename TToDomain>
struct GroupEvent : Converters<TToWire, TToDomain>
{
    using Domain = typename Converters<TToWire, TToDomain>::Domain;

    static Domain Of(Block const& block, char const id)
    {
        auto const make = [id]
        {
            if constexpr (std::is_same_v<TContent, Clips::Groups::Guid>)
                return Id<TContent>(id);
            else
                return GroupOf(id);
        };
        Domain event(0, {}, make());
        block.Fill(event);
        return event;
    }

    static Domain Full() { return Of(FullBlock(), 'f'); }
    static Domain Held() { return Of(HeldBlock(), 'h'); }
};

struct Creation : GroupEvent<Clips::Groups::AnglesGroup, AnglesGroupCreationEventArgsToThriftConverter,
                             ThriftToAnglesGroupCreationEventArgsConverter>
{
    static auto& Base(Wire& wire) { return wire; }
    static constexpr auto Text = "<base>";
    static constexpr auto BaseText = "AnglesGroupCreationEventArgs(clipCommandEventArgs=<block>, anglesGroup=<group>, "
                                     "databaseRevision=-4294967301)";
};

struct CreationFinished : GroupEvent<Clips::Groups::AnglesGroup, AnglesGroupCreationFinishedEventArgsToThriftConverter,
                                     ThriftToAnglesGroupCreationFinishedEventArgsConverter>
{
    static auto& Base(Wire& wire) { return wire.creationEventArgs; }
    static constexpr auto Text = "AnglesGroupCreationFinishedEventArgs(creationEventArgs=<base>)";
    static constexpr auto BaseText = Creation::BaseText;
};

struct UpdateFinished : GroupEvent<Clips::Groups::AnglesGroup, AnglesGroupUpdateFinishedEventArgsToThriftConverter,
                                   ThriftToAnglesGroupUpdateFinishedEventArgsConverter>
{
    static auto& Base(Wire& wire) { return wire.updateEventArgs; }
    static constexpr auto Text = "AnglesGroupUpdateFinishedEventArgs(updateEventArgs=<base>)";
    static constexpr auto BaseText = "AnglesGroupUpdateEventArgs(clipCommandEventArgs=<block>, anglesGroup=<group>, "
                                     "databaseRevision=-4294967301)";
};

struct DeletionFinished : GroupEvent<Clips::Groups::Guid, AnglesGroupDeletionFinishedEventArgsToThriftConverter,
                                     ThriftToAnglesGroupDeletionFinishedEventArgsConverter>
{
    static auto& Base(Wire& wire) { return wire.deletionEventArgs; }
    static constexpr auto Text = "AnglesGroupDeletionFinishedEventArgs(deletionEventArgs=<base>)";
    static constexpr auto BaseText = "AnglesGroupDeletionEventArgs(clipCommandEventArgs=<block>, "
                                     "anglesGroupId=Guid(value=ffffffffffffffff), databaseRevision=-4294967301)";
};

std::string ShownBase(auto const& wire)
{
    if constexpr (requires { wire.anglesGroup; })
        return Shown(wire, {{Printed(wire.clipCommandEventArgs), "<block>"}, {Printed(wire.anglesGroup), "<group>"}});
    else
        return Shown(wire, {{Printed(wire.clipCommandEventArgs), "<block>"}});
}

template<typename TEvent>
class AnglesGroupEventConversion : public testing::Test
{
};
using GroupEvents = testing::Types<Creation, CreationFinished, UpdateFinished, DeletionFinished>;
TYPED_TEST_SUITE(AnglesGroupEventConversion, GroupEvents, );

TYPED_TEST(AnglesGroupEventConversion, RoundTripReplacesTheDestination)
{
    using Event = TypeParam;
    ExpectRoundTrip<Event>(Event::Full(), Event::Held());
    auto wire = Event::Sent(Event::Full());
    EXPECT_EQ(Shown(wire, {{Printed(Event::Base(wire)), "<base>"}}), Event::Text);
    EXPECT_EQ(ShownBase(Event::Base(wire)), Event::BaseText);
}

TYPED_TEST(AnglesGroupEventConversion, ABadBlockLeavesPlaceholdersInTheDestination)
{
    using Event = TypeParam;
    auto wire = Event::Sent(Event::Full());
    Event::Base(wire).clipCommandEventArgs.__isset.userTicket = false;
    auto event = Event::Held();
    EXPECT_EQ(Event::Told(wire, event), "Missing fields for ClipCommand");
    EXPECT_EQ(event, Event::Of(Placeholders(), 'f'));
}

TEST(AnglesGroupCreationFailedConversion, GoesToTheWireOnly)
{
    AnglesGroupCreationFailedEventArgs event(0, {}, GroupOf('f'));
    FullBlock().Fill(event);
    event.result = Corvane::Data::OperationResult::ResourceNotFound;
    event.internalResult = -7;
    Generated::AnglesGroupCreationFailedEventArgs wire;
    EXPECT_TRUE(AnglesGroupCreationFailedEventArgsToThriftConverter().To(event, wire).success);
    EXPECT_EQ(Shown(wire, {{Printed(wire.creationEventArgs), "<base>"}}),
              "AnglesGroupCreationFailedEventArgs(creationEventArgs=<base>, result=3, internalResult=-7)");
    EXPECT_EQ(wire.creationEventArgs, Creation::Sent(Creation::Full()));
}

} // namespace
} // namespace Talvo::Tests

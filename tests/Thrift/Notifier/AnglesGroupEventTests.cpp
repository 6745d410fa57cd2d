#include "tests/Thrift/Notifier/Values.h"

#include "Domain/CorvaneData/Notification/AnglesGroupCreationFailedEventArgs.h"
#include "records/Notifier.h"

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

/// `TContent` is the content of the event: a group or the identifier of a group.
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
};

struct CreationFinished : GroupEvent<Clips::Groups::AnglesGroup, AnglesGroupCreationFinishedEventArgsToThriftConverter,
                                     ThriftToAnglesGroupCreationFinishedEventArgsConverter>
{
    static auto& Base(Wire& wire) { return wire.creationEventArgs; }
};

struct UpdateFinished : GroupEvent<Clips::Groups::AnglesGroup, AnglesGroupUpdateFinishedEventArgsToThriftConverter,
                                   ThriftToAnglesGroupUpdateFinishedEventArgsConverter>
{
    static auto& Base(Wire& wire) { return wire.updateEventArgs; }
};

struct DeletionFinished : GroupEvent<Clips::Groups::Guid, AnglesGroupDeletionFinishedEventArgsToThriftConverter,
                                     ThriftToAnglesGroupDeletionFinishedEventArgsConverter>
{
    static auto& Base(Wire& wire) { return wire.deletionEventArgs; }
};

template<typename TEvent>
class AnglesGroupEventConversion : public testing::Test
{
};
using GroupEvents = testing::Types<Creation, CreationFinished, UpdateFinished, DeletionFinished>;
TYPED_TEST_SUITE(AnglesGroupEventConversion, GroupEvents, );

TYPED_TEST(AnglesGroupEventConversion, BadBlockSetsPlaceholdersInTheDestination)
{
    using Event = TypeParam;
    auto wire = Event::Sent(Event::Full());
    Event::Base(wire).clipCommandEventArgs.__isset.userTicket = false;
    auto event = Event::Held();
    EXPECT_EQ(Event::Told(wire, event), "Missing fields for ClipCommand");
    EXPECT_EQ(event, Event::Of(Placeholders(), 'f'));
}

TEST(AnglesGroupCreationFailedConversion, WritesAllFields)
{
    AnglesGroupCreationFailedEventArgs event(0, {}, GroupOf('f'));
    FullBlock().Fill(event);
    event.result = Corvane::Data::OperationResult::ResourceNotFound;
    event.internalResult = -7;
    Generated::AnglesGroupCreationFailedEventArgs wire;
    EXPECT_TRUE(AnglesGroupCreationFailedEventArgsToThriftConverter().To(event, wire).success);
    EXPECT_EQ(wire.result, Corvane::Data::Generated::OperationResult::ResourceNotFound);
    EXPECT_EQ(wire.internalResult, -7);
    EXPECT_EQ(wire.creationEventArgs, Creation::Sent(Creation::Full()));
}

} // namespace
} // namespace Talvo::Tests

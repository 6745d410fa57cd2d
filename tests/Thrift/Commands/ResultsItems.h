#pragma once

#include "Domain/CorvaneData/OperationStatus.h"
#include "Domain/CorvaneData/Optional.h"
#include "tests/Thrift/Commands/Values.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Talvo::Tests
{

using ItemStatus = Corvane::Data::OperationStatus;
using ItemResult = Corvane::Data::OperationResult;

inline ItemStatus const Succeeded{ItemStatus::Status::Succeeded, ItemResult::Success};
inline ItemStatus const Refused{ItemStatus::Status::Failed, ItemResult::UsedResource};
inline ItemStatus const Waiting{ItemStatus::Status::Pending, ItemResult::Unknown};
inline ItemStatus const StartOfAnItem{ItemStatus::Status::Failed, ItemResult::DefaultError};

/// The clip or the playlist that an item may hold.
auto& ContentOf(auto& item)
{
    if constexpr (requires { item.clip; })
        return item.clip;
    else
        return item.playlist;
}

/// An item that holds a copy of the content, if there is one.
template<typename TItem, typename... TContent>
TItem SomeItem(ItemStatus const& status, TContent const&... content)
{
    TItem item;
    item.OperationStatus(status);
    ((ContentOf(item) = std::make_unique<TContent>(content)), ...);
    return item;
}

/// What an item holds, the content even where it does not count.
auto Shown(auto const& item) requires requires
{
    item.OperationStatus();
}
{
    auto const& content = ContentOf(item);
    Corvane::Data::Optional<std::remove_cvref_t<decltype(*content)>> shown;
    if (content != nullptr) shown = *content;
    return std::pair(item.OperationStatus(), shown);
}

auto Shown(auto const& reply) requires requires
{
    reply.results;
}
{
    std::vector<decltype(Shown(reply.results[0]))> items;
    for (auto const& item : reply.results) items.push_back(Shown(item));
    return std::pair(reply.commandGuid, items);
}

/// What replies of items owe: they replace what the destination held, append to a wire record that is used again, and need
/// both fields. `full` builds a reply of three items under an identifier.
template<typename TConverters>
void ExpectReplyOfItems(auto const& full, std::string const& name)
{
    auto const show = [](auto const& reply) { return Shown(reply); };
    auto const sent = [&] { return full('c'); };
    auto const held = [&] { return full('h'); };
    auto const none = [] { return typename TConverters::Domain(Id('c'), 0); };
    ExpectReplyRoundTrip<TConverters>(sent, show, held);
    ExpectReplyRoundTrip<TConverters>(none, show, held);
    EXPECT_TRUE(TConverters::Sent(none()).__isset.results);
    auto const wire = TConverters::Sent(sent());
    EXPECT_TRUE(wire.__isset.guid);
    EXPECT_EQ(TConverters::Sent(sent(), wire).results.size(), 6u);

    for (auto const field : {0, 1, 2})
    {
        auto partial = wire;
        partial.__isset.guid = field == 1;
        partial.__isset.results = field == 2;
        auto reply = held();
        EXPECT_EQ(TConverters::Told(partial, reply), name + " is empty");
        EXPECT_EQ(Shown(reply), Shown(held()));
    }
}

} // namespace Talvo::Tests

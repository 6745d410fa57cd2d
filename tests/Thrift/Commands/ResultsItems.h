#pragma once

#include "Domain/CorvaneData/OperationStatus.h"
#include "Domain/CorvaneData/Optional.h"
#include "tests/Thrift/Commands/Values.h"

#include <memory>
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

/// Returns the clip or the playlist of an item.
auto& ContentOf(auto& item)
{
    if constexpr (requires { item.clip; })
        return item.clip;
    else
        return item.playlist;
}

/// Returns an item with a copy of the content, if given.
template<typename TItem, typename... TContent>
TItem SomeItem(ItemStatus const& status, TContent const&... content)
{
    TItem item;
    item.OperationStatus(status);
    ((ContentOf(item) = std::make_unique<TContent>(content)), ...);
    return item;
}

/// Returns the status and the content of an item, regardless of the status.
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

} // namespace Talvo::Tests

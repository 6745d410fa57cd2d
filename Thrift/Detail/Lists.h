#pragma once

#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// Reserves room for `count` more elements, growing at least as much as push_back, so that repeated appending stays
/// linear.
template<typename T>
void ReserveMore(std::vector<T>& list, std::size_t const count)
{
    auto const size = list.size() + count;
    if (size > list.capacity()) list.reserve(std::max(size, 2 * list.capacity()));
}

/// Reserves room for the remaining items of a reply's cursor, if the reply reports their number.
template<typename T>
void ReserveFor(std::vector<T>& list, auto const& reply)
{
    if constexpr (requires { reply.RemainingCount(); }) ReserveMore(list, reply.RemainingCount());
}

/// Converts every element of `source`, the list `field`, and appends it to `destination`. The first failure ends the
/// conversion and is returned: the failed element is not added, those before it are kept.
template<typename TConverter, typename TSource, typename TDestination>
Common::Serialization::ConversionResult AppendEach(char const* const field, TConverter const& converter,
                                                   std::vector<TSource> const& source,
                                                   std::vector<TDestination>& destination)
{
    ReserveMore(destination, source.size());
    for (std::size_t i = 0; i < source.size(); ++i)
    {
        if (auto const result = Read({field, i}, converter, source[i], destination.emplace_back()); !result.success)
        {
            destination.pop_back();
            return Nested(result);
        }
    }
    return Success();
}

/// Like AppendEach(), but ignores the results of the elements: one that fails is added with what was converted before
/// the failure.
template<typename TConverter, typename TSource, typename TDestination>
void AppendAll(char const* const field, TConverter const& converter, std::vector<TSource> const& source,
               std::vector<TDestination>& destination)
{
    ReserveMore(destination, source.size());
    for (std::size_t i = 0; i < source.size(); ++i)
        std::ignore = Read({field, i}, converter, source[i], destination.emplace_back());
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail

#pragma once

#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// Makes room for `count` more elements at once, growing as push_back would, so that lists that are appended to again
/// and again stay linear.
template<typename T>
void ReserveMore(std::vector<T>& list, std::size_t const count)
{
    auto const size = list.size() + count;
    if (size > list.capacity()) list.reserve(std::max(size, 2 * list.capacity()));
}

/// Makes room for the items that a reply's cursor still has to give, where the reply tells how many.
template<typename T>
void ReserveFor(std::vector<T>& list, auto const& reply)
{
    if constexpr (requires { reply.RemainingCount(); }) ReserveMore(list, reply.RemainingCount());
}

/// Converts every element of `source`, the list `field`, into a new one after those that `destination` holds. The first
/// that fails ends it with its failure: it is not added, those before it are kept.
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

/// As AppendEach(), but the results of the elements are dropped: one that fails is added with what was converted of it.
template<typename TConverter, typename TSource, typename TDestination>
void AppendAll(char const* const field, TConverter const& converter, std::vector<TSource> const& source,
               std::vector<TDestination>& destination)
{
    ReserveMore(destination, source.size());
    for (std::size_t i = 0; i < source.size(); ++i)
        std::ignore = Read({field, i}, converter, source[i], destination.emplace_back());
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail

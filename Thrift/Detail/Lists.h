#pragma once

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

/// Converts every element of `source` into a new one behind those that `destination` holds. The first that fails ends
/// it with its failure: it is not added, those before it are kept.
template<typename TConverter, typename TSource, typename TDestination>
Common::Serialization::ConversionResult AppendEach(TConverter const& converter, std::vector<TSource> const& source,
                                                   std::vector<TDestination>& destination)
{
    ReserveMore(destination, source.size());
    for (auto const& element : source)
    {
        if (auto const result = converter.To(element, destination.emplace_back()); !result.success)
        {
            destination.pop_back();
            return Nested(result);
        }
    }
    return Success();
}

/// The same, but what an element reports is not looked at: one that fails is added with what was converted of it.
template<typename TConverter, typename TSource, typename TDestination>
void AppendAll(TConverter const& converter, std::vector<TSource> const& source, std::vector<TDestination>& destination)
{
    ReserveMore(destination, source.size());
    for (auto const& element : source) std::ignore = converter.To(element, destination.emplace_back());
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail

#pragma once

#include "Common/Serialization/Converter.h"

namespace Talvo::Records
{

template<typename TSource, typename TDestination>
struct Types
{
    using Source = TSource;
    using Destination = TDestination;
};

template<typename TSource, typename TDestination>
Types<TSource, TDestination> TypesOf(Common::Serialization::Converter<TSource, TDestination> const*);

/// What a converter reads, and what it fills.
template<typename TConverter>
using SourceOf = typename decltype(TypesOf(static_cast<TConverter*>(nullptr)))::Source;
template<typename TConverter>
using DestinationOf = typename decltype(TypesOf(static_cast<TConverter*>(nullptr)))::Destination;

} // namespace Talvo::Records

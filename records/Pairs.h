#pragma once

#include "Common/Serialization/Converter.h"

#include <type_traits>

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

/// The registry's line for one record: its two converters. Where there is none to the domain, void stands for it.
template<typename TToWire, typename TToDomain>
struct Pair
{
    using ToWire = TToWire;
    using ToDomain = TToDomain;
    using Wire = DestinationOf<TToWire>;
    using Domain = SourceOf<TToWire>;

    static Pair Of(std::type_identity<Wire>);
};

/// What a record without converters has instead.
template<typename TWire>
struct NoPair
{
    using ToWire = void;
    using ToDomain = void;
    using Wire = TWire;
    using Domain = void;
};

/// Pairs that are found by their wire records.
template<typename... TPairs>
struct PairList : TPairs...
{
    using TPairs::Of...;
};

} // namespace Talvo::Records

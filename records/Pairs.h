#pragma once

#include "records/ConverterTypes.h"

#include "generated/RecordFields.h"

#include <type_traits>

namespace Talvo::Records
{

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

#pragma once

#include "records/Shape.h"

#include "generated/RecordFields.h"

#include <string>
#include <type_traits>

namespace Talvo::Records
{

/// The shape of any type that records have.
template<typename T>
Shape const& ShapeOf();

/// Makes it.
template<typename T>
Shape MakeShape()
{
    using Kind = Shape::Kind;
    if constexpr (std::is_same_v<T, bool>)
        return {Kind::Bool};
    else if constexpr (std::is_enum_v<T>)
        return {Kind::I32};
    else if constexpr (std::is_integral_v<T>)
        return {sizeof(T) == 2 ? Kind::I16 : sizeof(T) == 4 ? Kind::I32 : Kind::I64};
    else if constexpr (std::is_same_v<T, std::string>)
        return {Kind::Text};
    else if constexpr (requires { typename T::mapped_type; })
        return {Kind::Map, "", {}, &ShapeOf<typename T::key_type>(), &ShapeOf<typename T::mapped_type>()};
    else if constexpr (requires { typename T::key_type; })
        return {Kind::Set, "", {}, nullptr, &ShapeOf<typename T::key_type>()};
    else if constexpr (requires { typename T::value_type; })
        return {Kind::List, "", {}, nullptr, &ShapeOf<typename T::value_type>()};
    else
    {
        Shape shape{Kind::Record, NameOf(T())};
        VisitFields(std::type_identity<T>(),
                    [&]<typename TField>(int const id, char const* const name, Requirement const requirement,
                                         TField T::*const, auto const&)
                    {
                        shape.fields.push_back({static_cast<std::int16_t>(id), name,
                                                requirement == Requirement::Required, &ShapeOf<TField>()});
                    });
        return shape;
    }
}

template<typename T>
Shape const& ShapeOf()
{
    static auto const shape = MakeShape<T>();
    return shape;
}

} // namespace Talvo::Records

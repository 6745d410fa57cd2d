#pragma once

#include "records/Shape.h"
#include "records/ValueWalk.h"

#include "generated/RecordFields.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

namespace Talvo::Records
{

/// The shape of any type that records have.
template<typename T>
Shape const& ShapeOf();

template<typename T>
T const& At(void const* const address)
{
    return *static_cast<T const*>(address);
}

template<typename T>
Value ValueAt(void const* const address, WireText::Kind const texts)
{
    auto const& value = At<T>(address);
    if constexpr (std::is_enum_v<T>)
        return Enumerator{static_cast<std::int32_t>(value), EnumeratorName(value)};
    else if constexpr (std::is_same_v<T, std::string>)
        return WireText{value, texts};
    else
        return value;
}

template<typename TRecord>
WireText::Kind TextsOf(void const* const record)
{
    if constexpr (std::is_same_v<TRecord, Corvane::Data::Generated::Guid>)
        return WireText::Kind::Identifier;
    else if constexpr (requires { At<TRecord>(record).isUtf16; })
        return At<TRecord>(record).isUtf16 ? WireText::Kind::Utf16 : WireText::Kind::Bytes;
    else
        return WireText::Kind::Bytes;
}

template<typename TRecord>
Shape RecordShape()
{
    Shape shape{Shape::Kind::Record};
    shape.name = NameOf(TRecord());
    shape.textsOf = &TextsOf<TRecord>;

    TRecord const record;
    auto const offsetOf = [&record](auto const& field) {
        return static_cast<std::size_t>(reinterpret_cast<char const*>(&field) - reinterpret_cast<char const*>(&record));
    };
    VisitFields(std::type_identity<TRecord>(),
                [&]<typename TField, typename TIsSet>(int const id, char const* const name,
                                                      Requirement const requirement, TField TRecord::*const member,
                                                      TIsSet)
                {
                    shape.fields.push_back({static_cast<std::int16_t>(id), name, requirement == Requirement::Required,
                                            requirement == Requirement::Optional, offsetOf(record.*member),
                                            [](void const* const address) { return TIsSet()(At<TRecord>(address)); },
                                            &ShapeOf<TField>()});
                });
    return shape;
}

template<typename TContainer>
Shape ContainerShape(Shape::Kind const kind, Shape const* const key, Shape const& element)
{
    Shape shape{kind};
    shape.key = key;
    shape.element = &element;
    shape.isEmpty = [](void const* const address) { return At<TContainer>(address).empty(); };
    shape.passElements = [](ValueWalk& walk, Shape const& itself, void const* const before, void const* const after)
    {
        static TContainer const none;
        auto const& left = before == nullptr ? none : At<TContainer>(before);
        auto const& right = after == nullptr ? none : At<TContainer>(after);
        if constexpr (requires { typename TContainer::mapped_type; })
            walk.PassEntries(itself, left, right);
        else
            walk.PassElements(itself, left, right,
                              itself.kind == Shape::Kind::List && before != nullptr && after != nullptr);
    };
    return shape;
}

/// Makes it.
template<typename T>
Shape MakeShape()
{
    using Kind = Shape::Kind;
    if constexpr (std::is_same_v<T, bool>)
        return {Kind::Bool, &ValueAt<T>};
    else if constexpr (std::is_enum_v<T>)
        return {Kind::I32, &ValueAt<T>};
    else if constexpr (std::is_integral_v<T>)
        return {sizeof(T) == 2 ? Kind::I16 : sizeof(T) == 4 ? Kind::I32 : Kind::I64, &ValueAt<T>};
    else if constexpr (std::is_same_v<T, std::string>)
        return {Kind::Text, &ValueAt<T>};
    else if constexpr (requires { typename T::mapped_type; })
        return ContainerShape<T>(Kind::Map, &ShapeOf<typename T::key_type>(), ShapeOf<typename T::mapped_type>());
    else if constexpr (requires { typename T::key_type; })
        return ContainerShape<T>(Kind::Set, nullptr, ShapeOf<typename T::key_type>());
    else if constexpr (requires { typename T::value_type; })
        return ContainerShape<T>(Kind::List, nullptr, ShapeOf<typename T::value_type>());
    else
        return RecordShape<T>();
}

template<typename T>
Shape const& ShapeOf()
{
    static auto const shape = MakeShape<T>();
    return shape;
}

} // namespace Talvo::Records

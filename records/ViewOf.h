#pragma once

#include "records/RecordView.h"

#include "generated/RecordFields.h"

#include <concepts>
#include <cstddef>
#include <string>
#include <type_traits>

namespace Talvo::Records
{

/// The view of a value of any type that records have.
template<typename T>
View ViewOf(T const& value)
{
    if constexpr (std::is_same_v<T, bool>)
        return {View::Kind::Number, value ? "true" : "false", {}};
    else if constexpr (std::is_enum_v<T>)
        return {View::Kind::Enumeration, std::to_string(static_cast<int>(value)), {}};
    else if constexpr (std::integral<T>)
        return {View::Kind::Number, std::to_string(value), {}};
    else if constexpr (std::is_same_v<T, std::string>)
        return {View::Kind::Text, '"' + Escaped(value) + '"', {}};
    else if constexpr (requires { value.begin(); })
    {
        View view{View::Kind::Container, std::to_string(value.size()), {}};
        std::size_t index = 0;
        for (auto const& element : value)
        {
            auto const number = std::to_string(index++);
            auto const label = '[' + number + ']';
            if constexpr (requires { typename T::mapped_type; })
            {
                view.parts.push_back({"key " + label, true, ViewOf(element.first)});
                view.parts.push_back({label, true, ViewOf(element.second)});
            }
            else if constexpr (requires { typename T::key_type; })
                view.parts.push_back({'{' + number + '}', true, ViewOf(element)});
            else
                view.parts.push_back({label, true, ViewOf(element)});
        }
        return view;
    }
    else
    {
        View view{View::Kind::Record, NameOf(value), {}};
        VisitFields(std::type_identity<T>(),
                    [&](int const id, char const* const name, Requirement, auto const member, auto const isSet) {
                        view.parts.push_back({std::to_string(id) + ' ' + name, isSet(value), ViewOf(value.*member)});
                    });
        return view;
    }
}

} // namespace Talvo::Records

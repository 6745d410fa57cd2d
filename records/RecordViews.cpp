#include "records/RecordType.h"
#include "records/ViewOf.h"

#include <string_view>
#include <type_traits>
#include <typeindex>
#include <unordered_map>

namespace Talvo::Records
{

namespace
{

/// What WireRecord calls with a record of one type.
struct Functions
{
    View (*fields)(void const* record);
    void (*copyValue)(void* record, void const* other, int id);
    void (*spoil)(void* record, std::size_t nested, bool isEmptied);
};

/// Calls `use` for each record inside `value` that can be changed.
template<typename T>
void ForEachNested(T& value, auto const& use)
{
    auto const visit = [&use](auto& inner)
    {
        if constexpr (requires { NameOf(inner); }) use(inner);
        ForEachNested(inner, use);
    };
    if constexpr (requires { NameOf(value); })
        VisitFields(std::type_identity<T>(),
                    [&](int, char const*, Requirement, auto const member, auto) { visit(value.*member); });
    else if constexpr (requires { typename T::mapped_type; })
        for (auto& entry : value) visit(entry.second);
    else if constexpr (requires { value.emplace_back(); } && !std::is_same_v<T, std::string>)
        for (auto&& element : value) visit(element);
}

template<typename TWire>
void CopyValueOf(void* const record, void const* const other, int const id)
{
    VisitFields(std::type_identity<TWire>(),
                [&](int const fieldId, char const*, Requirement, auto const member, auto)
                {
                    if (fieldId == id) static_cast<TWire*>(record)->*member = static_cast<TWire const*>(other)->*member;
                });
}

template<typename TWire>
void SpoilIn(void* const record, std::size_t nested, bool const isEmptied)
{
    ForEachNested(*static_cast<TWire*>(record),
                  [&](auto& other)
                  {
                      if (nested-- != 0) return;
                      if (isEmptied)
                          other = {};
                      else if constexpr (requires { other.__isset; })
                          other.__isset = {};
                  });
}

Functions const& FunctionsOf(std::type_info const& type)
{
    static auto const all = []
    {
        std::unordered_map<std::type_index, Functions> functions;
        VisitRecords(
            [&functions]<typename TWire>(std::type_identity<TWire>, std::string_view, std::string_view)
            {
                functions.emplace(typeid(TWire), Functions{[](void const* const record)
                                                           { return ViewOf(*static_cast<TWire const*>(record)); },
                                                           &CopyValueOf<TWire>, &SpoilIn<TWire>});
            });
        return functions;
    }();
    return all.at(type);
}

} // namespace

View WireRecord::Fields() const
{
    return FunctionsOf(HeldType()).fields(Held());
}

void WireRecord::CopyValue(WireRecord const& other, int const id)
{
    FunctionsOf(HeldType()).copyValue(const_cast<void*>(Held()), other.Held(), id);
}

void WireRecord::Spoil(std::size_t const nested, bool const isEmptied)
{
    FunctionsOf(HeldType()).spoil(const_cast<void*>(Held()), nested, isEmptied);
}

} // namespace Talvo::Records

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift
{

/// The two-way table between a domain enumeration `A` and a wire enumeration `B`.
///
/// The numbers of the two sides are equal in most tables and differ in a few, so values are looked up and never cast. A
/// value outside the table gives the number 0 of the other side: an unknown wire number quietly reads as the first
/// enumerator. A lookup can't fail, takes no lock and costs one probe.
///
/// Tables are constant data (declare them `constinit`), so they serve the static initialisers of other files too. A
/// table that repeats a value in either column, or that does not fit, does not compile.
template<typename A, typename B>
class EnumAssociation
{
public:
    constexpr EnumAssociation(std::initializer_list<std::pair<A const, B const>> pairs)
    {
        for (auto const& [domain, wire] : pairs)
        {
            forward_.Insert(domain, wire);
            backward_.Insert(wire, domain);
        }
    }

    /// The wire value of `value`, or the number 0.
    constexpr B ToGeneratedEnum(A value) const noexcept { return forward_.Find(value); }

    /// The domain value of `value`, or the number 0.
    constexpr A FromGeneratedEnum(B value) const noexcept { return backward_.Find(value); }

private:
    /// A key lies in the slot of its low five bits. An empty slot holds the pair (0, 0), which answers 0 for every key.
    template<typename Key, typename Value>
    class Column
    {
    public:
        constexpr void Insert(Key key, Value value)
        {
            auto& slot = slots_[Index(key)];
            if (slot != Slot{}) throw std::logic_error("Two keys share a slot");
            slot = {key, value};
        }

        constexpr Value Find(Key key) const noexcept
        {
            auto const& slot = slots_[Index(key)];
            return slot.key == key ? slot.value : Value{};
        }

    private:
        struct Slot
        {
            Key key{};
            Value value{};
            bool operator==(Slot const&) const = default;
        };

        static constexpr std::size_t SlotCount = 32;

        static constexpr std::size_t Index(Key key) noexcept { return static_cast<std::uint32_t>(key) % SlotCount; }

        std::array<Slot, SlotCount> slots_{};
    };

    Column<A, B> forward_;
    Column<B, A> backward_;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift

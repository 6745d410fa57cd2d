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
/// table with a pair that would not be found both ways, since a value is repeated or shares the slot of another one,
/// does not compile then, and throws std::logic_error where it is not constant.
template<typename A, typename B>
class EnumAssociation
{
public:
    /// Each value of either side once.
    constexpr EnumAssociation(std::initializer_list<std::pair<A const, B const>> pairs)
    {
        for (auto const& [domain, wire] : pairs)
        {
            forward_.Insert(domain, wire);
            backward_.Insert(wire, domain);
        }
        for (auto const& [domain, wire] : pairs)
        {
            if (ToGeneratedEnum(domain) != wire || FromGeneratedEnum(wire) != domain)
                throw std::logic_error("A pair is not found both ways");
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
        constexpr void Insert(Key key, Value value) noexcept { slots_[Index(key)] = {key, value}; }

        constexpr Value Find(Key key) const noexcept
        {
            auto const slot = slots_[Index(key)]; // a copy, so that nothing depends on a branch
            return slot.key == key ? slot.value : Value{};
        }

    private:
        struct Slot
        {
            Key key{};
            Value value{};
        };

        static constexpr std::size_t SlotCount = 32;

        static constexpr std::size_t Index(Key key) noexcept { return static_cast<std::uint32_t>(key) % SlotCount; }

        std::array<Slot, SlotCount> slots_{};
    };

    Column<A, B> forward_;
    Column<B, A> backward_;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift

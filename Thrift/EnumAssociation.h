#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <utility>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift
{

/// The two-way table between a domain enumeration `A` and a wire enumeration `B`.
///
/// The numbers of the two sides are equal in most tables and differ in a few, so values are looked up and never cast. A
/// value outside the table gives the number 0 of the other side: an unknown wire number quietly reads as the first
/// enumerator. A lookup can't fail and takes no lock.
///
/// Any list of pairs makes a table, and each direction is a map of its own: where a value is repeated on one side, its
/// first pair counts in that direction. If no two values of a side agree in their low five bits, a lookup costs one probe
/// and the table is constant data: declare it `constexpr`, and it serves the static initialisers of other files too. In
/// any other list the values whose place is taken lie in memory of their own, and finding one of these, or a value that
/// is not in the table, costs a search of them.
template<typename A, typename B>
class EnumAssociation
{
public:
    /// Takes any pairs, in any order.
    constexpr EnumAssociation(std::initializer_list<std::pair<A const, B const>> pairs)
    {
        for (auto const& [domain, wire] : pairs)
        {
            forward_.Insert(domain, wire);
            backward_.Insert(wire, domain);
        }
    }

    // Always inlined, as Find() is: for a constant table the compiler then drops the search at once, and the link-time
    // optimizer inlines the one probe that is left into the converters.

    /// The wire value of `value`, or the number 0.
    [[gnu::always_inline]] constexpr B ToGeneratedEnum(A value) const noexcept { return forward_.Find(value); }

    /// The domain value of `value`, or the number 0.
    [[gnu::always_inline]] constexpr A FromGeneratedEnum(B value) const noexcept { return backward_.Find(value); }

private:
    template<typename Key, typename Value>
    class Column
    {
    public:
        constexpr Column() noexcept
        {
            slots_[0].key = static_cast<Key>(1); // 0, which the other free slots hold, belongs here
        }

        constexpr void Insert(Key key, Value value)
        {
            auto& slot = slots_[Index(key)];
            if (slot.key == key || FindOther(key) != nullptr) return;
            if (Index(slot.key) != Index(key))
                slot = {key, value};
            else
                others_.push_back({key, value});
        }

        [[gnu::always_inline]] constexpr Value Find(Key key) const noexcept
        {
            auto const slot = slots_[Index(key)]; // a copy, so that nothing depends on a branch
            if (slot.key == key) return slot.value;
            if (others_.empty()) return Value{};
            auto const* const other = FindOther(key);
            return other == nullptr ? Value{} : other->value;
        }

    private:
        struct Slot
        {
            Key key{};
            Value value{};
        };

        static constexpr std::size_t SlotCount = 32;

        static constexpr std::size_t Index(Key key) noexcept { return static_cast<std::uint32_t>(key) % SlotCount; }

        constexpr Slot const* FindOther(Key key) const noexcept
        {
            for (auto const& other : others_)
                if (other.key == key) return &other;
            return nullptr;
        }

        /// A key lies in the slot of its low five bits. A free slot holds a key of another slot.
        std::array<Slot, SlotCount> slots_{};
        /// The keys whose slot was taken.
        std::vector<Slot> others_;
    };

    Column<A, B> forward_;
    Column<B, A> backward_;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <utility>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift
{

/// A two-way table between a domain enumeration `A` and a wire enumeration `B`.
///
/// The numbers of the two sides are equal in most tables and differ in a few, so values are looked up and never cast. A
/// value outside the table gives the number 0 of the other side: an unknown wire number silently reads as the first
/// enumerator. A lookup can't fail and takes no lock.
///
/// Any list of pairs can be used, and each direction has its own map: if a value is repeated on one side, its first
/// pair counts in that direction. If no two values of a side have equal low five bits, a lookup takes one probe and the
/// table can be constant data: declare it `constexpr`, and static initialisers of other files can use it too.
/// Otherwise, colliding values are stored in separate memory, and finding one of them, or a value that is not in the
/// table, takes a linear search of them.
template<typename A, typename B>
class EnumAssociation
{
public:
    /// Builds the table from any pairs, in any order.
    constexpr EnumAssociation(std::initializer_list<std::pair<A const, B const>> pairs)
    {
        for (auto const& [domain, wire] : pairs)
        {
            forward_.Insert(domain, wire);
            backward_.Insert(wire, domain);
        }
    }

    // Always inlined, like Find(): for a constant table the compiler then removes the search, and the link-time
    // optimizer inlines the remaining probe into the converters.

    /// The wire value of `value`, or the number 0 if it is not in the table.
    [[gnu::always_inline]] constexpr B ToGeneratedEnum(A value) const noexcept { return forward_.Find(value); }

    /// The domain value of `value`, or the number 0 if it is not in the table.
    [[gnu::always_inline]] constexpr A FromGeneratedEnum(B value) const noexcept { return backward_.Find(value); }

private:
    template<typename Key, typename Value>
    class Column
    {
    public:
        constexpr Column() noexcept
        {
            slots_[0].key = static_cast<Key>(1); // key 0, which the other free slots hold, belongs in slot 0
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
            auto const slot = slots_[Index(key)]; // a copy, so that the result does not depend on a branch
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

        /// The slot of a key is given by its low five bits. A free slot holds a key that belongs in another slot.
        std::array<Slot, SlotCount> slots_{};
        /// The keys whose slot was already taken.
        std::vector<Slot> others_;
    };

    Column<A, B> forward_;
    Column<B, A> backward_;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift

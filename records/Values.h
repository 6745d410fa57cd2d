#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

namespace Talvo::Records
{

/// A record or container without values.
enum class Empty
{
    Record,
    Map,
    List,
    Set
};

/// A number of an enumeration.
struct Enumerator
{
    std::int32_t number;
    char const* name; ///< Null where the enumeration has none for it.

    bool operator==(Enumerator const& other) const { return number == other.number; }
};

/// A text as on the wire: its bytes, which the record keeps.
struct WireText
{
    enum class Kind
    {
        Bytes,
        Utf16, ///< Beside it stands a flag that says so.
        Identifier
    };

    std::string_view bytes;
    Kind kind;

    bool operator==(WireText const& other) const { return bytes == other.bytes; }
};

/// A value as on the wire.
using Value = std::variant<bool, std::int16_t, std::int32_t, std::int64_t, Enumerator, WireText, Empty>;

/// The key of a map's entry. A record of one value stands as that value.
struct Key
{
    Value value;
};

/// From a record to a field, by name; from a list or set to an element; from a map to the entry of a key.
using Step = std::variant<char const*, std::size_t, Key>;

/// A value of a record, or of two records of one type. An empty list, map or nested record counts as one value.
struct Place
{
    std::span<Step const> path; ///< Of this call only.
    std::optional<Value> before;
    std::optional<Value> after; ///< Of the second record.
    bool inBoth;                ///< Both records have it, or the record or container that is empty in one of them.
    std::optional<std::size_t> cutTo; ///< Length of the list that ends before it in the second record.
};

using ValueVisit = std::function<void(Place const&)>;

/// Which fields of a record count.
enum class FieldSet
{
    Read,   ///< Those whose flags are set: of a record that was read, those that were there.
    Written ///< Those that `write` writes.
};

} // namespace Talvo::Records

#pragma once

#include "records/RecordView.h"
#include "tools/Protocols.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

namespace Talvo::Tools
{

/// A record or container without values.
enum class Empty
{
    Record,
    Map,
    List,
    Set
};

/// A value on the wire: enumerations are numbers, texts are bytes.
using Value = std::variant<bool, std::int16_t, std::int32_t, std::int64_t, std::string, Empty>;

/// One value of a record on the wire. An empty list, map or nested record counts as one value.
struct Field
{
    std::string path; ///< Such as `clips[3].clip.inBoundTodTimecode`; the entries of a map stand under their keys.
    Value value;
};

struct FieldList
{
    std::vector<Field> fields;
    /// By path, all records and containers, lists with their lengths.
    std::unordered_map<std::string, std::optional<std::size_t>> containers;
};

using Records::Escaped;

/// A value as text: texts are escaped and stand in quotes.
std::string ValueText(Value const& value);

/// All values that `record` writes, in the order of its schema.
FieldList ListFields(WireRecord const& record);

/// The same for a record that was read, without the values that its bytes did not hold: a generated `write` writes every
/// default field, whether it was there or not.
FieldList ListFields(Decoded const& decoded);

} // namespace Talvo::Tools

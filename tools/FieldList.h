#pragma once

#include "tools/Protocols.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Talvo::Tools
{

/// One value of a record on the wire. An empty list, map or nested record counts as one value.
struct Field
{
    std::string path;  ///< Such as `clips[3].clip.inBoundTodTimecode`; the entries of a map stand under their keys.
    std::string value; ///< Enumerations as numbers; texts in quotes, bytes that are not printable ASCII as `\x1f`.
};

using FieldList = std::vector<Field>;

/// A value as text.
std::string ValueText(bool value);
std::string ValueText(std::int64_t value);
std::string ValueText(std::string const& value);

/// All values that `record` writes, in the order of its schema.
FieldList ListFields(WireRecord const& record);

/// The same for a record that was read, without the values that its bytes did not hold: a generated `write` writes every
/// default field, whether it was there or not.
FieldList ListFields(Decoded const& decoded);

/// A value that differs between two records of one type.
struct FieldChange
{
    std::string path;
    std::optional<std::string> before; ///< Nothing: the value was added.
    std::optional<std::string> after;  ///< Nothing: the value is gone.
};

/// The differences from `before` to `after`, in the order of the schema.
std::vector<FieldChange> Compare(FieldList const& before, FieldList const& after);

} // namespace Talvo::Tools

#pragma once

#include "tools/RecordType.h"

#include <optional>
#include <string>
#include <vector>

namespace Talvo::Tools
{

/// One value of a record as it goes to the wire. An empty list, map or nested record counts as one value.
struct Field
{
    std::string path;  ///< Such as `clips[3].clip.inBoundTodTimecode`; the entries of a map stand under their keys.
    std::string value; ///< Enumerations as numbers; texts in quotes, bytes that are not printable ASCII as `\x1f`.
};

using FieldList = std::vector<Field>;

/// All values that `record` writes, in the order of its schema. A field that stays off the wire is not among them.
FieldList ListFields(WireRecord const& record);

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

#pragma once

#include "tools/FieldList.h"

#include <optional>
#include <string>
#include <vector>

namespace Talvo::Tools
{

/// A value that differs between two records of one type.
struct FieldChange
{
    std::string path;
    std::optional<Value> before; ///< Nothing: the value was added.
    std::optional<Value> after;  ///< Nothing: the value is gone.
    std::string why;             ///< What happened to it, as far as the two values show; else "changed".
};

/// The differences from `before` to `after`, in the order of the schema.
std::vector<FieldChange> Compare(FieldList const& before, FieldList const& after);

} // namespace Talvo::Tools

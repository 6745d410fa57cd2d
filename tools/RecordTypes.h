#pragma once

#include "tools/RecordType.h"

#include <string_view>
#include <vector>

namespace Talvo::Tools
{

/// Every record, by namespace and name.
std::vector<RecordType> const& RecordTypes();

/// The record type of that name. Throws Failure if there is none.
RecordType const& FindRecordType(std::string_view name);

} // namespace Talvo::Tools

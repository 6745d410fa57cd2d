#pragma once

#include "records/RecordView.h"

#include <map>
#include <string>

namespace Talvo::Tests
{

/// What is written of domain objects that are built by hand, where two fields could be exchanged both ways and nobody who
/// reads and writes would see it. Under headings such as `Clip, built`.
std::map<std::string, Records::View> BuiltRecords();

} // namespace Talvo::Tests

#pragma once

#include "records/RecordView.h"

#include <map>
#include <string>

namespace Talvo::Tests
{

/// The wire records of domain objects that are built by hand, under headings such as `Clip, built`. They show exchanged
/// fields: a converter pair that exchanges two fields in both directions passes a round trip.
std::map<std::string, Records::View> BuiltRecords();

} // namespace Talvo::Tests

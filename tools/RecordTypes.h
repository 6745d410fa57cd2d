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

// The records of each namespace; a record whose converters are new is entered there.
std::vector<RecordType> CommonRecords();
std::vector<RecordType> GroupRecords();
std::vector<RecordType> ClipRecords();
std::vector<RecordType> ChannelRecords();
std::vector<RecordType> SequenceRecords();
std::vector<RecordType> ServerRecords();
std::vector<RecordType> CommandRecords();
std::vector<RecordType> NotifierRecords();

} // namespace Talvo::Tools

#pragma once

#include "tools/Protocols.h"

#include <functional>
#include <istream>
#include <string>

namespace Talvo::Tools
{

/// A record from JSON in the binary protocol.
struct EncodedRecord
{
    RecordType const* type;
    std::string bytes;
};

/// Reads the next record from JSON as `print --json` writes it. Throws Failure, which names the place in the JSON.
EncodedRecord ReadJsonRecord(std::istream& json);

} // namespace Talvo::Tools

#pragma once

#include "tools/Encodings.h"
#include "tools/Protocols.h"

#include <functional>
#include <string>

namespace Talvo::Tools
{

/// A file and how records lie in it.
struct Source
{
    std::string record; ///< Name of their type.
    std::string path;   ///< "-" for standard input.
    Protocol protocol = Protocol::Binary;
    Limits limits;
    Encoding encoding = Encoding::Bytes;
    bool framed = false; ///< Each in a frame for sure; else they may be.
    bool all = false;    ///< One or more records; else just one.
};

/// What is done with a record of a file; `name` is what messages call it.
using RecordUse = std::function<void(Message const&, std::string const& name)>;

/// Reads a file and calls `use` for each of its records. Where they do not fit as they are, it looks for frames and message
/// headers around them, and notes on standard error what it found. Throws Failure where the file holds no such record, and
/// says what it looks like instead; the name of the file or record comes before what `use` throws as Failure.
void ForEachRecord(Source const& source, RecordType const& type, RecordUse const& use);

} // namespace Talvo::Tools

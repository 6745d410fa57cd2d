#pragma once

#include "tools/Encodings.h"
#include "tools/Protocols.h"

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <vector>

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

/// A type of records that fits the bytes of a file.
struct Guess
{
    RecordType const* type;
    Protocol protocol;
    std::size_t values;        ///< How many the records have.
    std::size_t skippedFields; ///< Fields that the type does not have.
};

/// The types that fit every record of a file in one of `protocols`, whatever `source` says of type and protocol: first those
/// that skip the fewest fields, and of these those with the most values. Throws Failure where none fits.
std::vector<Guess> GuessRecords(Source const& source, std::span<Protocol const> protocols);

} // namespace Talvo::Tools

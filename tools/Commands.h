#pragma once

#include "tools/Protocols.h"
#include "tools/Style.h"

#include <string>

namespace Talvo::Tools
{

/// Exit statuses of the tool.
enum class ExitStatus
{
    Done = 0,
    ConversionFailed = 1,
    BadInput = 2
};

/// A record in a file.
struct Source
{
    std::string record; ///< Name of its type.
    std::string path;   ///< "-" for standard input.
    Protocol protocol;
    Limits limits;
};

/// Where a record is written to.
struct Target
{
    std::string path; ///< "-" for standard output; empty for nowhere.
    Protocol protocol;
};

// The tool's commands. Results go to standard output, notes and the messages of failed conversions to standard error;
// everything else that goes wrong is thrown as Failure.

/// Prints every record's name, namespace and directions.
void List(Style const& style);

/// Prints one line for each value of a record.
void Print(Source const& source, Style const& style);

/// Converts a record to the domain and back, prints what each conversion said and every value that came back different,
/// and writes the record that came back. To the domain it converts with TryTo().
ExitStatus Convert(Source source, Target const& target, Style const& style);

/// Writes a record in another protocol. Notes on standard error where that protocol can't carry it unchanged.
void Transcode(Source const& source, Target const& target);

} // namespace Talvo::Tools

#pragma once

#include "tools/Capture.h"
#include "tools/Style.h"

#include <span>
#include <string>

namespace Talvo::Tools
{

/// Exit statuses of the tool.
enum class ExitStatus
{
    Done = 0,
    ConversionFailed = 1,
    Different = 1, ///< Of two records.
    BadInput = 2
};

/// Where records are written to, one after the other without frame and header.
struct Target
{
    std::string path; ///< "-" for standard output; empty for nowhere.
    Protocol protocol;
};

// The tool's commands. Results go to standard output, notes and the messages of failed conversions to standard error;
// everything else that goes wrong is thrown as Failure.

/// Prints every record's name, namespace and directions.
void List(Style const& style);

/// Prints the types of records that may be in a file, the likeliest first, in one of `protocols`.
void GuessTypes(Source const& source, std::span<Protocol const> protocols, Style const& style);

/// Prints one line for each value of the records.
void Print(Source const& source, Style const& style);

/// Converts records to the domain and back, prints what each conversion said and every value that came back different, and
/// writes the records that came back, if all did. To the domain it converts with TryTo().
ExitStatus Convert(Source source, Target const& target, Style const& style);

/// Prints every value in which the record of another file differs, A being that of `source` and B the other one.
ExitStatus Diff(Source source, std::string const& otherPath, Style const& style);

/// Writes the records of JSON that Print() has written. Of `source`, only the path and the largest size count.
void EncodeJson(Source const& source, Target const& target);

/// Writes records in another protocol. Notes on standard error where that protocol can't carry it unchanged.
void Transcode(Source const& source, Target const& target);

} // namespace Talvo::Tools

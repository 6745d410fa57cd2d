#pragma once

#include <string>
#include <vector>

/// What one run of talvo-wire did.
struct Outcome
{
    int status; ///< Exit status; the negative number of the signal that ended it.
    std::string output;
    std::string errors;
    long peakKilobytes;
};

/// Runs talvo-wire as a process of its own, `input` on its standard input. Its standard output goes to the file
/// `outputPath` if that is given.
Outcome RunTool(std::vector<std::string> arguments, std::string const& input = {}, std::string const& outputPath = {});

/// A path for a file of this test program.
std::string TemporaryPath(std::string const& name);

std::string Read(std::string const& path);
void Write(std::string const& path, std::string const& bytes);

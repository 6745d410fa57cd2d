#pragma once

#include <string>
#include <vector>

/// What one run of a program did.
struct Outcome
{
    int status; ///< Exit status; the negative number of the signal that ended it.
    std::string output;
    std::string errors;
    long peakKilobytes;
};

/// Runs a program, `command[0]`, as a process of its own, `input` on its standard input. Its standard output goes to the file
/// `outputPath` if that is given.
Outcome Run(std::vector<std::string> command, std::string const& input = {}, std::string const& outputPath = {});

/// Runs talvo-wire.
Outcome RunTool(std::vector<std::string> arguments, std::string const& input = {}, std::string const& outputPath = {});

/// Runs a line of bash, in which talvo-wire is the one that was built. What is in a pipe must succeed too.
Outcome RunShell(std::string const& line);

/// A path for a file of this test program.
std::string TemporaryPath(std::string const& name);

std::string Read(std::string const& path);
void Write(std::string const& path, std::string const& bytes);

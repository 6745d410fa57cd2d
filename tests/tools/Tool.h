#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

using Arguments = std::vector<std::string>;

/// The result of one run of a program.
struct Outcome
{
    int status; ///< Exit status; the negative number of the signal that ended it.
    std::string output;
    std::string errors;
    long peakKilobytes;
};

/// Runs the program `command[0]` as a process with `input` on its standard input. Its standard output goes to the file
/// `outputPath` if that is given.
Outcome Run(std::vector<std::string> command, std::string const& input = {}, std::string const& outputPath = {});

/// Runs talvo-wire.
Outcome RunTool(std::vector<std::string> arguments, std::string const& input = {}, std::string const& outputPath = {});

/// Runs commands of bash, in which talvo-wire is the one of this build. A pipe fails if any of its commands fails.
Outcome RunShell(std::string const& line);

/// The path of a temporary file of this process.
std::string TemporaryPath(std::string const& name);

std::string Read(std::string const& path);
void Write(std::string const& path, std::string const& bytes);

/// The bytes of a file of examples/samples.
std::string Sample(std::string const& file);

/// The names of all protocols.
inline std::string const Protocols[] = {"binary", "compact", "json"};

/// The record in another protocol, as the tool writes it.
std::string Transcoded(std::string const& record, std::string const& bytes, std::string const& from,
                       std::string const& to);

/// A number as four bytes, the most significant first.
std::string Number(std::size_t number);

/// One message of the tool that contains a text.
inline auto OneLine(std::string const& text)
{
    return testing::AllOf(testing::MatchesRegex("talvo-wire: [^\n]+\n"), testing::HasSubstr(text));
}

/// Checks that a run ended with status 2, one message that contains a text, and no output.
void ExpectRefused(Outcome const& outcome, std::string const& text = {});

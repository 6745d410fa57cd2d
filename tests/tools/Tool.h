#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

using Arguments = std::vector<std::string>;

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

std::string SamplePath(std::string const& file);
std::string Sample(std::string const& file);

/// Names of all protocols.
inline std::string const Protocols[] = {"binary", "compact", "json"};

/// The record in another protocol, as the tool writes it.
std::string Transcoded(std::string const& record, std::string const& bytes, std::string const& from,
                       std::string const& to);

/// A number of four bytes, the largest first.
std::string Number(std::size_t number);

/// One line of the tool's own, with that text in it.
inline auto OneLine(std::string const& text)
{
    return testing::AllOf(testing::MatchesRegex("talvo-wire: [^\n]+\n"), testing::HasSubstr(text));
}

/// It ends with status 2, one line with that text, and nothing on standard output.
void ExpectRefused(Outcome const& outcome, std::string const& text = {});

#pragma once

#include <string>
#include <vector>

namespace CLI
{
class App;
}

namespace Talvo::Tools
{

/// What may stand for the last of `words`, which follow the name of the program and of which the last is not at its end.
/// Empty where it may be a file name.
std::vector<std::string> Completions(CLI::App const& app, std::vector<std::string> const& words);

} // namespace Talvo::Tools

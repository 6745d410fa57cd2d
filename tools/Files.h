#pragma once

#include <string>

namespace Talvo::Tools
{

/// All bytes of a file, or of standard input where `path` is "-"; of a longer one, one byte more than MaxFileSize.
/// Throws Failure if it can't be read.
std::string ReadFile(std::string const& path);

/// Writes a file, or to standard output where `path` is "-". Throws Failure if it can't be written.
void WriteFile(std::string const& path, std::string const& bytes);

} // namespace Talvo::Tools

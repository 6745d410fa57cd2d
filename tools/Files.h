#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Talvo::Tools
{

/// What a file to read is called: "standard input" where `path` is "-".
std::string InputName(std::string const& path);

/// All bytes of a file, or of standard input where `path` is "-"; of one longer than `maxSize`, one byte more than that.
/// Throws Failure if it can't be read.
std::string ReadFile(std::string const& path, std::size_t maxSize);

/// Writes a file, or to standard output where `path` is "-". Throws Failure if it can't be written.
void WriteFile(std::string const& path, std::string_view bytes);

} // namespace Talvo::Tools

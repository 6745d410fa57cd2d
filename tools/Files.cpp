#include "tools/Files.h"

#include "tools/Failure.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

namespace Talvo::Tools
{

namespace
{

std::string ReadAll(std::istream& input, std::size_t const maxSize)
{
    std::string bytes;
    std::array<char, 65536> block;
    while (bytes.size() <= maxSize && input)
    {
        auto const wanted = std::min(block.size(), maxSize + 1 - bytes.size());
        input.read(block.data(), static_cast<std::streamsize>(wanted));
        bytes.append(block.data(), static_cast<std::size_t>(input.gcount()));
    }
    return bytes;
}

Failure SystemFailure(std::string const& action, std::string const& path)
{
    return Failure(action + " " + path + ": " + std::strerror(errno));
}

} // namespace

std::string ReadFile(std::string const& path, std::size_t const maxSize)
{
    if (path == "-") return ReadAll(std::cin, maxSize);

    std::ifstream file(path, std::ios::binary);
    if (!file) throw SystemFailure("can't read", path);
    auto bytes = ReadAll(file, maxSize);
    if (file.bad()) throw SystemFailure("can't read", path);
    return bytes;
}

void WriteFile(std::string const& path, std::string const& bytes)
{
    if (path == "-")
    {
        std::cout << bytes;
        return;
    }

    std::ofstream file(path, std::ios::binary);
    if (file) file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (file) file.close();
    if (!file) throw SystemFailure("can't write", path);
}

} // namespace Talvo::Tools

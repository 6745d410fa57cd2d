#include "tools/Files.h"

#include "tools/Failure.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <memory>

namespace Talvo::Tools
{

namespace
{

struct Close
{
    void operator()(std::FILE* const file) const { std::fclose(file); }
};

Failure SystemFailure(std::string const& action, std::string const& name)
{
    return Failure(action + " " + name + ": " + std::strerror(errno));
}

} // namespace

std::string InputName(std::string const& path)
{
    return path == "-" ? "standard input" : path;
}

std::string ReadFile(std::string const& path, std::size_t const maxSize)
{
    std::unique_ptr<std::FILE, Close> const opened(path == "-" ? nullptr : std::fopen(path.c_str(), "rb"));
    auto* const file = path == "-" ? stdin : opened.get();
    if (file == nullptr) throw SystemFailure("can't read", path);

    std::string bytes;
    std::array<char, 65536> block;
    while (bytes.size() <= maxSize)
    {
        auto const wanted = std::min(block.size(), maxSize + 1 - bytes.size());
        auto const count = std::fread(block.data(), 1, wanted, file);
        bytes.append(block.data(), count);
        if (count == wanted) continue;
        if (std::ferror(file) != 0) throw SystemFailure("can't read", InputName(path));
        break;
    }
    return bytes;
}

void WriteFile(std::string const& path, std::string_view const bytes)
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

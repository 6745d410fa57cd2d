#include "tools/Progress.h"

#include <iostream>

#include <unistd.h>

namespace Talvo::Tools
{

namespace
{

constexpr auto* ClearLine = "\r\x1b[K";

} // namespace

Progress::Progress(std::size_t const totalBytes)
    : totalBytes_(totalBytes)
    , isVisible_(isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0)
{
}

Progress::~Progress()
{
    if (isShown_) std::cerr << ClearLine << std::flush;
}

void Progress::Add(std::size_t const bytes)
{
    bytes_ += bytes;
    ++records_;
    if (!isVisible_ || Clock::now() < next_) return;
    next_ = Clock::now() + std::chrono::seconds(1);
    isShown_ = true;
    std::cerr << ClearLine << records_ << " records, " << 100ULL * bytes_ / totalBytes_ << " %" << std::flush;
}

} // namespace Talvo::Tools

#include "tools/Progress.h"

#include <iostream>

#include <unistd.h>

namespace Talvo::Tools
{

namespace
{

bool IsVisible()
{
    return isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0;
}

} // namespace

void ClearProgress()
{
    if (IsVisible()) std::cerr << "\r\x1b[K";
}

Progress::Progress(std::size_t const totalBytes)
    : totalBytes_(totalBytes)
{
}

Progress::~Progress()
{
    ClearProgress();
}

void Progress::Add(std::size_t const bytes)
{
    bytes_ += bytes;
    ++records_;
    if (Clock::now() < next_ || !IsVisible()) return;
    next_ = Clock::now() + std::chrono::seconds(1);
    ClearProgress();
    std::cerr << records_ << " records, " << 100ULL * bytes_ / totalBytes_ << " %" << std::flush;
}

} // namespace Talvo::Tools

#pragma once

#include <chrono>
#include <cstddef>

namespace Talvo::Tools
{

/// Removes the line of a Progress, so that a message can take its place.
void ClearProgress();

/// Shows once a second how much of a file is done, in one line on standard error that it removes at the end. Shows
/// nothing if standard error is not a terminal, or if standard output is the same terminal and shows it anyway.
class Progress
{
public:
    explicit Progress(std::size_t totalBytes);
    ~Progress();
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;

    /// Counts one more record of that many bytes.
    void Add(std::size_t bytes);

private:
    using Clock = std::chrono::steady_clock;

    std::size_t const totalBytes_;
    std::size_t bytes_ = 0;
    std::size_t records_ = 0;
    Clock::time_point next_ = Clock::now() + std::chrono::seconds(1);
};

} // namespace Talvo::Tools

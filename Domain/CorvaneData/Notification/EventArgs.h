#pragma once

namespace Talvo::System
{

/// The base class of event data.
struct EventArgs
{
    EventArgs() = default;
    EventArgs(EventArgs const&) = default;
    EventArgs(EventArgs&&) = default;
    EventArgs& operator=(EventArgs const&) = default;
    EventArgs& operator=(EventArgs&&) = default;
    virtual ~EventArgs() = default;

    bool operator==(EventArgs const&) const = default;
};

} // namespace Talvo::System

#pragma once

#include "Domain/CorvaneData/Servers/ServerId.h"

#include <cstdint>

namespace Talvo::Corvane::Data::Sequences
{

/// The place of a sequence: a server and a location number on it, 0 to 109.
class SequenceId
{
public:
    static constexpr std::uint32_t MaxLocation = 109;

    /// Constructs location 0 of no server.
    SequenceId() noexcept = default;

    /// Throws std::invalid_argument "SequenceId.Location : invalid location number" if the location is above 109.
    SequenceId(Servers::ServerId server, std::uint32_t location);

    /// The location number, 0 to MaxLocation.
    std::uint32_t Location() const noexcept { return location_; }

    bool operator==(SequenceId const&) const = default;

    Servers::ServerId serverId = Servers::ServerId::None();

private:
    std::uint32_t location_ = 0;
};

} // namespace Talvo::Corvane::Data::Sequences

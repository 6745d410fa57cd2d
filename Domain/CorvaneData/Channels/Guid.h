#pragma once

#include "Domain/CorvaneData/Guid.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace Talvo::Corvane::Data::Channels
{

/// Identifier of a player or recorder channel. Its sixteen bytes carry a type, a channel index and the serial number of
/// the machine, and survive a trip through the wire.
///
/// An identifier built from parts is never sixteen zero bytes, so it always differs from Data::Guid::Empty().
class Guid : public Data::Guid
{
public:
    /// What the channel is.
    enum class Type : std::int32_t
    {
        ChannelGuidTypePlayer = 0,
        ChannelGuidTypeRecorder = 1,
        ChannelGuidTypeUndefined = 2
    };

    /// Guid(Type::ChannelGuidTypeUndefined, 0, 0).
    Guid() noexcept;

    /// Any values are taken, and ChannelIndex() and MachineSerial() give them back.
    Guid(Type type, int channelIndex, unsigned int machineSerial) noexcept;

    /// Overwrites all sixteen bytes, whatever they say of the parts.
    using Data::Guid::operator=;

    /// The channel index in the bytes.
    int ChannelIndex() const noexcept;
    /// The serial number in the bytes.
    unsigned int MachineSerial() const noexcept;

    bool operator==(Guid const&) const = default;
    std::strong_ordering operator<=>(Guid const&) const = default; ///< of the bytes, as unsigned numbers
};

} // namespace Talvo::Corvane::Data::Channels

/// Hash for unordered containers: from 0, for each byte in order, times 31 plus the byte, in 32-bit arithmetic.
template<>
struct std::hash<Talvo::Corvane::Data::Channels::Guid>
{
    /// The hash of the sixteen bytes.
    std::size_t operator()(Talvo::Corvane::Data::Channels::Guid const& guid) const noexcept
    {
        std::uint32_t value = 0;
        for (unsigned int i = 0; i < guid.Size; ++i) value = value * 31 + guid.Bytes()[i];
        return value;
    }
};

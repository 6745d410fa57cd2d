#pragma once

#include "Domain/CorvaneData/Guid.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace Talvo::Corvane::Data::Channels
{

/// Identifier of a player or recorder channel. Its sixteen bytes hold a type, a channel index and the serial number of
/// the machine, and are unchanged by the wire.
///
/// An identifier built from parts is never sixteen zero bytes, so it always differs from Data::Guid::Empty().
class Guid : public Data::Guid
{
public:
    /// The type of the channel.
    enum class Type : std::int32_t
    {
        ChannelGuidTypePlayer = 0,
        ChannelGuidTypeRecorder = 1,
        ChannelGuidTypeUndefined = 2
    };

    /// Constructs Guid(Type::ChannelGuidTypeUndefined, 0, 0).
    Guid() noexcept;

    /// Accepts any values; ChannelIndex() and MachineSerial() return them.
    Guid(Type type, int channelIndex, unsigned int machineSerial) noexcept;

    /// Overwrites all sixteen bytes, which then need not be valid parts.
    using Data::Guid::operator=;

    /// The channel index that the bytes hold.
    int ChannelIndex() const noexcept;
    /// The serial number that the bytes hold.
    unsigned int MachineSerial() const noexcept;

    bool operator==(Guid const&) const = default;
    std::strong_ordering operator<=>(Guid const&) const = default; ///< compares the bytes as unsigned numbers
};

} // namespace Talvo::Corvane::Data::Channels

/// Hash for unordered containers. It starts at 0; for each byte in order it is multiplied by 31 and the byte is added,
/// in 32-bit arithmetic.
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

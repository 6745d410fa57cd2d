#include "Domain/CorvaneData/Channels/Guid.h"

namespace Talvo::Corvane::Data::Channels
{

namespace
{

// Layout: four 32-bit words, most significant byte first: type, channel index, machine serial, mark. The mark prevents
// an identifier whose parts are all 0 from being sixteen zeros.
constexpr unsigned int ChannelIndexOffset = 4;
constexpr unsigned int MachineSerialOffset = 8;
constexpr std::uint32_t Mark = 1;

// The bytes of a default identifier, as a constant because building a reply constructs dozens of them.
constexpr unsigned char Undefined[Data::Guid::Size]{0, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, Mark};

Data::Guid Pack(std::uint32_t type, std::uint32_t channelIndex, std::uint32_t machineSerial) noexcept
{
    unsigned char bytes[Data::Guid::Size];
    unsigned char* out = bytes;
    for (std::uint32_t const word : {type, channelIndex, machineSerial, Mark})
        for (int shift = 24; shift >= 0; shift -= 8) *out++ = static_cast<unsigned char>(word >> shift);
    return Data::Guid(bytes, Data::Guid::Size);
}

std::uint32_t WordAt(Data::Guid const& guid, unsigned int offset) noexcept
{
    std::uint32_t word = 0;
    for (unsigned int i = 0; i < 4; ++i) word = word << 8 | guid.Bytes()[offset + i];
    return word;
}

} // namespace

Guid::Guid() noexcept
    : Data::Guid(Undefined, Size)
{
}

Guid::Guid(Type type, int channelIndex, unsigned int machineSerial) noexcept
    : Data::Guid(Pack(static_cast<std::uint32_t>(type), static_cast<std::uint32_t>(channelIndex), machineSerial))
{
}

int Guid::ChannelIndex() const noexcept
{
    return static_cast<int>(WordAt(*this, ChannelIndexOffset));
}

unsigned int Guid::MachineSerial() const noexcept
{
    return WordAt(*this, MachineSerialOffset);
}

} // namespace Talvo::Corvane::Data::Channels

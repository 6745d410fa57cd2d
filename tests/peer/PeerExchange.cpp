// Answers the peer: for each line "RECORD PROTOCOL BYTES" of standard input, with the bytes as hexadecimal digits, one
// line with the bytes of that record as it is written again and, behind a blank, as it comes back from the domain.
// Where none comes back, a word stands there: "none" without converters for both directions, or "failure".

#include "tools/Protocols.h"

#include <cstddef>
#include <iostream>
#include <string>
#include <string_view>

namespace
{

using namespace Talvo::Tools;

std::string FromHex(std::string const& digits)
{
    std::string bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2)
        bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
    return bytes;
}

std::string ToHex(std::string const& bytes)
{
    static constexpr std::string_view Digits = "0123456789abcdef";
    std::string digits;
    for (char const byte : bytes)
    {
        auto const value = static_cast<unsigned char>(byte);
        digits += {Digits[value >> 4U], Digits[value & 0xFU]};
    }
    return digits;
}

std::string ThroughDomain(WireRecord const& record, RecordType const& type, Protocol const protocol)
{
    if (type.throughDomain == nullptr) return "none";
    auto const trip = type.throughDomain(record);
    return trip.record == nullptr ? "failure" : ToHex(Encode(*trip.record, protocol));
}

} // namespace

int main()
{
    std::string name;
    std::string protocolName;
    std::string digits;
    while (std::cin >> name >> protocolName >> digits)
    {
        auto const& type = FindRecordType(name);
        auto const protocol = ParseProtocol(protocolName);
        auto const record = Decode(FromHex(digits), protocol, type).record;
        std::cout << ToHex(Encode(*record, protocol)) << ' ' << ThroughDomain(*record, type, protocol) << '\n';
    }
}

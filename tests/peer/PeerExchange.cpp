// Answers the peer: for each line "RECORD PROTOCOL BYTES" of standard input, with the bytes as hexadecimal digits, one line
// with the bytes of that record as it is written again, in binary and, behind a blank, in compact.

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

} // namespace

int main()
{
    std::string name;
    std::string protocolName;
    std::string digits;
    while (std::cin >> name >> protocolName >> digits)
    {
        auto const record = Decode(Message(FromHex(digits), ParseProtocol(protocolName), FindRecordType(name))).record;
        std::cout << ToHex(Encode(*record, Protocol::Binary)) << ' ' << ToHex(Encode(*record, Protocol::Compact))
                  << '\n';
    }
}

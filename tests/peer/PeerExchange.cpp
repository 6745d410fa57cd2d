// Answers the peer. Each line of standard input is "RECORD PROTOCOL BYTES", with the bytes as hexadecimal digits. The
// answer is one line with the record written again: its bytes in the binary protocol, a blank, and its bytes in the
// compact protocol.

#include "tools/Protocols.h"
#include "tools/Text.h"

#include <cstddef>
#include <iostream>
#include <string>

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

} // namespace

int main()
{
    std::string name;
    std::string protocolName;
    std::string digits;
    while (std::cin >> name >> protocolName >> digits)
    {
        auto const record = Decode(Message(FromHex(digits), ParseProtocol(protocolName), FindRecordType(name))).record;
        std::cout << Hex(Encode(*record, Protocol::Binary)) << ' ' << Hex(Encode(*record, Protocol::Compact)) << '\n';
    }
}

// A separate program, built against the installed library. It writes a clip to the wire and reads it again.

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "generated/Clip.h"

#include <thrift/protocol/TCompactProtocol.h>
#include <thrift/transport/TBufferTransports.h>

#include <algorithm>
#include <iostream>
#include <memory>
#include <string_view>

namespace Clips = Talvo::Corvane::Data::Clips;
namespace Wire = Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips;

int main()
{
    using apache::thrift::transport::TMemoryBuffer;
    using Protocol = apache::thrift::protocol::TCompactProtocolT<TMemoryBuffer>;

    Clips::Clip clip;
    std::ranges::copy(std::string_view{"Goal 2:1"}, clip.name.payload.begin());
    clip.camera = Clips::Camera::B;
    clip.outBoundField = 1500;

    Wire::Generated::Clip sent;
    auto const toWire = Wire::ClipToThriftConverter{}.To(clip, sent);
    if (!toWire.success)
    {
        std::cerr << toWire.message << '\n';
        return 1;
    }

    auto const buffer = std::make_shared<TMemoryBuffer>();
    Protocol protocol{buffer};
    auto const size = sent.write(&protocol);
    Wire::Generated::Clip received;
    received.read(&protocol);

    Clips::Clip back;
    auto const toDomain = Wire::ThriftToClipConverter{}.To(received, back);
    if (!toDomain.success || back != clip)
    {
        std::cerr << "the clip changed in the round trip: " << toDomain.message << '\n';
        return 1;
    }
    std::cout << "a clip of " << size << " bytes is unchanged after the round trip\n";
    return 0;
}

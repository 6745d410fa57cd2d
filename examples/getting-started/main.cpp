// A clip of your own: to the wire, into the file my-clip.binary, and back.

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/TryTo.h"
#include "TimePoints/TalvoTimeCodeFormatter.h"
#include "TimePoints/TimeCodeBuilder.h"
#include "generated/Clip_types.h"

#include <thrift/protocol/TBinaryProtocol.h>
#include <thrift/transport/TBufferTransports.h>

#include <fstream>
#include <iostream>
#include <memory>

namespace Domain = Talvo::Corvane::Data::Clips;
namespace Wire = Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips;
using apache::thrift::transport::TMemoryBuffer;
using Talvo::Corvane::Zelmar::Serialization::Thrift::TryTo;
using Talvo::TimePoints::TalvoTimeCodeFormatter;
using Talvo::TimePoints::TimeCodeBuilder;
using Protocol = apache::thrift::protocol::TBinaryProtocolT<TMemoryBuffer>;

int main()
{
    Domain::Clip clip;
    if (!clip.name.Set("Goal 2:1")) std::cerr << "The name was cut after 24 bytes\n";
    clip.camera = Domain::Camera::B;
    clip.inBoundField = 0;
    clip.outBoundField = 1500;
    TimeCodeBuilder const kickOff{.year = 2025, .month = 5, .day = 17, .hour = 20, .minute = 45, .numerator = 25};
    // A new clip is Pal, with which 25 frames a second agree.
    if (!clip.TrySetInBoundTodTimecode(kickOff.Build())) return 1;

    Wire::Generated::Clip record;
    auto const sent = Wire::ClipToThriftConverter().To(clip, record);
    if (!sent.success) std::cerr << sent.message << '\n';

    auto const buffer = std::make_shared<TMemoryBuffer>();
    Protocol protocol(buffer);
    auto const size = record.write(&protocol);
    std::ofstream("my-clip.binary", std::ios::binary) << buffer->getBufferAsString();

    Wire::Generated::Clip received;
    received.read(&protocol);
    Domain::Clip copy;
    auto const result = TryTo(Wire::ThriftToClipConverter(), received, copy);
    if (!result.success) std::cerr << result.message << '\n';

    std::cout << size << " bytes, in at " << TalvoTimeCodeFormatter().Format(copy.InBoundTodTimecode())
              << (copy == clip ? ", came back as it was\n" : ", came back changed\n");
}

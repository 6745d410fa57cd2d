// Writes a clip to the file my-clip.binary and reads it back.

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Wire/Codec.h"
#include "TimePoints/TalvoTimeCodeFormatter.h"
#include "TimePoints/TimeCodeBuilder.h"
#include "generated/Clip.h"

#include <fstream>
#include <iostream>

namespace Domain = Talvo::Corvane::Data::Clips;
namespace Wire = Talvo::Corvane::Zelmar::Serialization::Thrift::Wire;
using Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips::ClipToThriftConverter;
using Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips::ThriftToClipConverter;
using Talvo::TimePoints::TalvoTimeCodeFormatter;
using Talvo::TimePoints::TimeCodeBuilder;

int main()
{
    Domain::Clip clip;
    if (!clip.name.Set("Goal 2:1")) std::cerr << "The name was cut after 24 bytes\n";
    clip.camera = Domain::Camera::B;
    clip.inBoundField = 0;
    clip.outBoundField = 1500;
    TimeCodeBuilder const kickOff{.year = 2025, .month = 5, .day = 17, .hour = 20, .minute = 45, .numerator = 25};
    // A new clip is Pal, which allows 25 frames per second.
    if (!clip.TrySetInBoundTodTimecode(kickOff.Build())) return 1;

    Wire::BinaryWriter writer;
    auto const sent = Wire::Encode(ClipToThriftConverter(), clip, writer);
    if (!sent.Success()) std::cerr << sent.message << '\n';
    std::ofstream("my-clip.binary", std::ios::binary) << writer.Text();

    Domain::Clip copy;
    auto const received = Wire::Decode(ThriftToClipConverter(), writer.Bytes(), copy);
    if (!received.Success()) std::cerr << received.message << '\n';

    std::cout << writer.Size() << " bytes, in at " << TalvoTimeCodeFormatter().Format(copy.InBoundTodTimecode())
              << (copy == clip ? ", came back as it was\n" : ", came back changed\n");
}

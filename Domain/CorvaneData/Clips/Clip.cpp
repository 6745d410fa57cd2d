#include "Domain/CorvaneData/Clips/Clip.h"

#include "TimePoints/TimeCodeBuilder.h"

#include <algorithm>
#include <type_traits>

namespace Talvo::Corvane::Data::Clips
{

static_assert(std::is_trivially_copyable_v<Clip> && std::is_trivially_destructible_v<Clip>);
static_assert(sizeof(Clip::Essence) == 13 * sizeof(std::int32_t));
static_assert(sizeof(FixedText<24>) == 1 + 24 + 2);

namespace
{

bool Agree(VideoStandard standard, TimePoints::TimeCode const& timecode) noexcept
{
    auto const nominalRate = timecode.Rate().numerator; // the denominator of a time code is always 1
    switch (standard)
    {
    case VideoStandard::Pal:
        return nominalRate == 25 || nominalRate == 50 || nominalRate == 100;
    case VideoStandard::Ntsc:
        return nominalRate == 24 || nominalRate == 30 || nominalRate == 48 || nominalRate == 60 || nominalRate == 120;
    }
    return false;
}

} // namespace

bool SetUmId(UmIdText& destination, std::string_view const text) noexcept
{
    auto const count = std::min(text.size(), destination.size() - 1);
    std::fill(std::copy_n(text.data(), count, destination.begin()), destination.end(), '\0');
    return count == text.size();
}

void Clip::Essence::Clear(Essences::Type type) noexcept
{
    *this = Essence();
    type_ = type;
    switch (type)
    {
    case Essences::Type::Intra:
        break;
    case Essences::Type::LongGop:
        metadata_ = Essences::Metadata::LongGopNone;
        videoCompressionType_ = Essences::VideoCompressionType::LongGopXdCam;
        audioCompressionType_ = Essences::AudioCompressionType::LongGopNone;
        videoCompressionInfo_ = Essences::VideoCompressionInfo::LongGopNone;
        break;
    case Essences::Type::LowRes:
        metadata_ = Essences::Metadata::LowResNone;
        videoCompressionType_ = Essences::VideoCompressionType::LowResMjpeg;
        audioCompressionType_ = Essences::AudioCompressionType::LowResMpeg1Layer2;
        videoCompressionInfo_ = Essences::VideoCompressionInfo::LowResNone;
        break;
    }
}

Clip::Clip() noexcept
    : inBoundTodTimecode_(DefaultTimecode())
    , inBoundUserTimecode_(inBoundTodTimecode_)
{
    longGopEssence.Clear(Essences::Type::LongGop);
    lowResEssence.Clear(Essences::Type::LowRes);
}

Clip const& Clip::Empty() noexcept
{
    static Clip const empty;
    return empty;
}

TimePoints::TimeCode Clip::DefaultTimecode() noexcept
{
    static TimePoints::TimeCode const timecode = TimePoints::TimeCodeBuilder{.year = 1900,
                                                                             .month = 1,
                                                                             .day = 1,
                                                                             .hour = 0,
                                                                             .minute = 0,
                                                                             .second = 0,
                                                                             .sample = 0,
                                                                             .numerator = 50,
                                                                             .denominator = 1,
                                                                             .dropFrame = false,
                                                                             .dated = true}
                                                     .Build();
    return timecode;
}

void Clip::VideoStandard(Clips::VideoStandard standard) noexcept
{
    videoStandard_ = standard;
}

bool Clip::TrySetInBoundTodTimecode(TimePoints::TimeCode const& timecode) noexcept
{
    return TrySet(inBoundTodTimecode_, timecode);
}

bool Clip::TrySetInBoundUserTimecode(TimePoints::TimeCode const& timecode) noexcept
{
    return TrySet(inBoundUserTimecode_, timecode);
}

bool Clip::TrySet(TimePoints::TimeCode& destination, TimePoints::TimeCode const& timecode) const noexcept
{
    if (!Agree(videoStandard_, timecode) && timecode != TimePoints::TimeCode::Empty() && timecode != DefaultTimecode())
        return false;
    destination = timecode;
    return true;
}

} // namespace Talvo::Corvane::Data::Clips

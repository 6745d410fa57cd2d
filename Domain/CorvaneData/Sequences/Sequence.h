#pragma once

#include "Domain/CorvaneData/Clips/Enums.h"
#include "Domain/CorvaneData/Clips/UmId.h"
#include "Domain/CorvaneData/FixedText.h"
#include "Domain/CorvaneData/Sequences/Enums.h"
#include "Domain/CorvaneData/Sequences/SequenceId.h"
#include "TimePoints/TimeCode.h"
#include "TimePoints/VideoRate.h"

#include <cstdint>

namespace Talvo::Corvane::Data::Sequences
{

/// The header of an edited timeline.
struct Sequence
{
    /// Constructs a header with the defaults below; `timeCodeRegenReference` is Clip::DefaultTimecode().
    Sequence() noexcept;

    bool operator==(Sequence const&) const = default;

    SequenceId id;
    Clips::UmId umId;
    FixedText<32> varId;
    FixedText<24> name;
    bool isTimeCodeRegen = false;
    TimePoints::TimeCode timeCodeRegenReference;
    TimeCodeRegenBase timeCodeRegenBase = TimeCodeRegenBase::Field;
    TimeCodeRegenSource timeCodeRegenSource = TimeCodeRegenSource::PlaylistRefTimecode;
    TimeCodeRegenOutput timeCodeRegenOutput = TimeCodeRegenOutput::None;
    TimeCodeRegenType timeCodeRegenType = TimeCodeRegenType::FullPlaylist;
    std::int64_t durationWithoutEffects = 0;
    std::int64_t durationWithEffects = 0;
    TimePoints::VideoRate playRate{1, 1};
    bool isFixedDuration = true;
    Clips::ArchiveStatus archiveStatus = Clips::ArchiveStatus::NoStore;
};

} // namespace Talvo::Corvane::Data::Sequences

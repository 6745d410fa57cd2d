#pragma once

#include "Domain/CorvaneData/Clips/UmId.h"
#include "Domain/CorvaneData/Sequences/AudioVideoElement.h"
#include "Domain/CorvaneData/Sequences/Sequence.h"
#include "Domain/CorvaneData/Sequences/Track.h"

namespace Talvo::Corvane::Data::Sequences
{

/// An edited timeline: its header, its track, and the clip of its auxiliary track. A copy is deep.
struct Playlist : Sequence
{
    /// A playlist with all the defaults.
    static Playlist const& Empty();

    bool operator==(Playlist const&) const = default;

    Track<AudioVideoElement> audioVideoTrack;
    Clips::UmId auxTrackClipUmId;
};

} // namespace Talvo::Corvane::Data::Sequences

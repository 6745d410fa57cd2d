#pragma once

#include "Domain/CorvaneData/Clips/UmId.h"
#include "Domain/CorvaneData/Sequences/AudioVideoElement.h"
#include "Domain/CorvaneData/Sequences/Sequence.h"
#include "Domain/CorvaneData/Sequences/Track.h"

namespace Talvo::Corvane::Data::Sequences
{

/// An edited timeline: its header, its track, and the clip of its auxiliary track. Copies are deep.
struct Playlist : Sequence
{
    /// A playlist in which all fields have their defaults.
    static Playlist const& Empty();

    bool operator==(Playlist const&) const = default;

    Track<AudioVideoElement> audioVideoTrack;
    Clips::UmId auxTrackClipUmId;
};

} // namespace Talvo::Corvane::Data::Sequences

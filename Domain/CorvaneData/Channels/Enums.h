#pragma once

#include <cstdint>

// The enumerations of the channel family. These types may hold numbers without an enumerator, which are never written
// to the wire.

namespace Talvo::Corvane::Data::Channels
{

/// The current activity of a player.
enum class PlayerModeStatus : std::int32_t
{
    Idle = 0,
    Live = 1,
    Empty = 2,
    Cueing = 3,
    Ready = 4,
    Playing = 5
};

/// The mode that a player is configured for.
enum class PlayerModeType : std::int32_t
{
    Undefined = 0,
    Idle = 1,
    ClipEdit = 2,
    ClipEditPlay = 3,
    ClipDiffusion = 4,
    ClipDiffusionPlay = 5,
    ClipDiffusionLive = 6,
    PlaylistEditClipInOut = 7,
    PlaylistEditClipSInSOut = 8,
    PlaylistEditClipBIBOAudio = 9,
    PlaylistEditElementBIBOVideo = 10,
    PlaylistDiffusion = 11,
    PlaylistDiffusionSplit = 12,
    PlaylistDiffusionNoSplit = 13
};

/// What a player does at the end of its material.
enum class PlayingLoopMode : std::int32_t
{
    Unknown = 0,
    None = 1,
    Loop = 2,
    Bounce = 3
};

/// How a player changes from one item to the next.
enum class PlayoutConfig : std::int32_t
{
    Undefined = 0,
    None = 1,
    Mix = 2,
    Cut = 3,
    TimelineEditRec = 4,
    TimelineEditPlay = 5,
    TimelineDiffusionMix = 6,
    TimelineDiffusionCut = 7
};

/// The current activity of a recorder.
enum class RecorderModeStatus : std::int32_t
{
    Idle = 0,
    Recording = 1,
    Pause = 2
};

} // namespace Talvo::Corvane::Data::Channels

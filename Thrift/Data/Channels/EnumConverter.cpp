#include "Thrift/Data/Channels/EnumConverter.h"

#include "Thrift/EnumAssociation.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels::EnumConverter
{

namespace Domain = Corvane::Data::Channels;

namespace
{

constexpr EnumAssociation<Domain::PlayerModeStatus, Generated::PlayerModeStatus::type> playerModeStatus{
    {Domain::PlayerModeStatus::Idle, Generated::PlayerModeStatus::Idle},
    {Domain::PlayerModeStatus::Live, Generated::PlayerModeStatus::Live},
    {Domain::PlayerModeStatus::Empty, Generated::PlayerModeStatus::Empty},
    {Domain::PlayerModeStatus::Cueing, Generated::PlayerModeStatus::Cueing},
    {Domain::PlayerModeStatus::Ready, Generated::PlayerModeStatus::Ready},
    {Domain::PlayerModeStatus::Playing, Generated::PlayerModeStatus::Playing},
};

constexpr EnumAssociation<Domain::PlayerModeType, Generated::PlayerModeType::type> playerModeType{
    {Domain::PlayerModeType::Undefined, Generated::PlayerModeType::Undefined},
    {Domain::PlayerModeType::Idle, Generated::PlayerModeType::Idle},
    {Domain::PlayerModeType::ClipEdit, Generated::PlayerModeType::ClipEdit},
    {Domain::PlayerModeType::ClipEditPlay, Generated::PlayerModeType::ClipEditPlay},
    {Domain::PlayerModeType::ClipDiffusion, Generated::PlayerModeType::ClipDiffusion},
    {Domain::PlayerModeType::ClipDiffusionPlay, Generated::PlayerModeType::ClipDiffusionPlay},
    {Domain::PlayerModeType::ClipDiffusionLive, Generated::PlayerModeType::ClipDiffusionLive},
    {Domain::PlayerModeType::PlaylistEditClipInOut, Generated::PlayerModeType::PlaylistEditClipInOut},
    {Domain::PlayerModeType::PlaylistEditClipSInSOut, Generated::PlayerModeType::PlaylistEditClipSInSOut},
    {Domain::PlayerModeType::PlaylistEditClipBIBOAudio, Generated::PlayerModeType::PlaylistEditClipBIBOAudio},
    {Domain::PlayerModeType::PlaylistEditElementBIBOVideo, Generated::PlayerModeType::PlaylistEditElementBIBOVideo},
    {Domain::PlayerModeType::PlaylistDiffusion, Generated::PlayerModeType::PlaylistDiffusion},
    {Domain::PlayerModeType::PlaylistDiffusionSplit, Generated::PlayerModeType::PlaylistDiffusionSplit},
    {Domain::PlayerModeType::PlaylistDiffusionNoSplit, Generated::PlayerModeType::PlaylistDiffusionNoSplit},
};

constexpr EnumAssociation<Domain::PlayingLoopMode, Generated::PlayingLoopMode::type> playingLoopMode{
    {Domain::PlayingLoopMode::Unknown, Generated::PlayingLoopMode::Unknown},
    {Domain::PlayingLoopMode::None, Generated::PlayingLoopMode::None},
    {Domain::PlayingLoopMode::Loop, Generated::PlayingLoopMode::Loop},
    {Domain::PlayingLoopMode::Bounce, Generated::PlayingLoopMode::Bounce},
};

constexpr EnumAssociation<Domain::PlayoutConfig, Generated::PlayoutConfig::type> playoutConfig{
    {Domain::PlayoutConfig::Undefined, Generated::PlayoutConfig::Undefined},
    {Domain::PlayoutConfig::None, Generated::PlayoutConfig::None},
    {Domain::PlayoutConfig::Mix, Generated::PlayoutConfig::Mix},
    {Domain::PlayoutConfig::Cut, Generated::PlayoutConfig::Cut},
    {Domain::PlayoutConfig::TimelineEditRec, Generated::PlayoutConfig::TimelineEditRec},
    {Domain::PlayoutConfig::TimelineEditPlay, Generated::PlayoutConfig::TimelineEditPlay},
    {Domain::PlayoutConfig::TimelineDiffusionMix, Generated::PlayoutConfig::TimelineDiffusionMix},
    {Domain::PlayoutConfig::TimelineDiffusionCut, Generated::PlayoutConfig::TimelineDiffusionCut},
};

constexpr EnumAssociation<Domain::RecorderModeStatus, Generated::RecorderModeStatus::type> recorderModeStatus{
    {Domain::RecorderModeStatus::Idle, Generated::RecorderModeStatus::Idle},
    {Domain::RecorderModeStatus::Recording, Generated::RecorderModeStatus::Recording},
    {Domain::RecorderModeStatus::Pause, Generated::RecorderModeStatus::Pause},
};
} // namespace

Generated::PlayerModeStatus::type ToGeneratedEnum(Domain::PlayerModeStatus const value) noexcept
{
    return playerModeStatus.ToGeneratedEnum(value);
}

Domain::PlayerModeStatus FromGeneratedEnum(Generated::PlayerModeStatus::type const value) noexcept
{
    return playerModeStatus.FromGeneratedEnum(value);
}

Generated::PlayerModeType::type ToGeneratedEnum(Domain::PlayerModeType const value) noexcept
{
    return playerModeType.ToGeneratedEnum(value);
}

Domain::PlayerModeType FromGeneratedEnum(Generated::PlayerModeType::type const value) noexcept
{
    return playerModeType.FromGeneratedEnum(value);
}

Generated::PlayingLoopMode::type ToGeneratedEnum(Domain::PlayingLoopMode const value) noexcept
{
    return playingLoopMode.ToGeneratedEnum(value);
}

Domain::PlayingLoopMode FromGeneratedEnum(Generated::PlayingLoopMode::type const value) noexcept
{
    return playingLoopMode.FromGeneratedEnum(value);
}

Generated::PlayoutConfig::type ToGeneratedEnum(Domain::PlayoutConfig const value) noexcept
{
    return playoutConfig.ToGeneratedEnum(value);
}

Domain::PlayoutConfig FromGeneratedEnum(Generated::PlayoutConfig::type const value) noexcept
{
    return playoutConfig.FromGeneratedEnum(value);
}

Generated::RecorderModeStatus::type ToGeneratedEnum(Domain::RecorderModeStatus const value) noexcept
{
    return recorderModeStatus.ToGeneratedEnum(value);
}

Domain::RecorderModeStatus FromGeneratedEnum(Generated::RecorderModeStatus::type const value) noexcept
{
    return recorderModeStatus.FromGeneratedEnum(value);
}
} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels::EnumConverter

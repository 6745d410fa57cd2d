#include "Thrift/Data/Sequences/EnumConverter.h"

#include "Thrift/EnumAssociation.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences::EnumConverter
{

namespace Domain = Corvane::Data::Sequences;

namespace
{

constexpr EnumAssociation<Domain::TagProperty::Type, Generated::TagPropertyType::type> tagPropertyType{
    {Domain::TagProperty::Type::Boolean, Generated::TagPropertyType::Boolean},
    {Domain::TagProperty::Type::Integer, Generated::TagPropertyType::Integer},
    {Domain::TagProperty::Type::String, Generated::TagPropertyType::String},
    {Domain::TagProperty::Type::Vector, Generated::TagPropertyType::Vector},
};

constexpr EnumAssociation<Domain::TagProperty::Key, Generated::TagPropertyKey::type> tagPropertyKey{
    {Domain::TagProperty::Key::Value, Generated::TagPropertyKey::Value},
    {Domain::TagProperty::Key::Status, Generated::TagPropertyKey::Status},
    {Domain::TagProperty::Key::Type, Generated::TagPropertyKey::Type},
    {Domain::TagProperty::Key::Id, Generated::TagPropertyKey::Id},
    {Domain::TagProperty::Key::UserId, Generated::TagPropertyKey::UserId},
    {Domain::TagProperty::Key::VarId, Generated::TagPropertyKey::VarId},
    {Domain::TagProperty::Key::Name, Generated::TagPropertyKey::Name},
    {Domain::TagProperty::Key::OutputNumber, Generated::TagPropertyKey::OutputNumber},
    {Domain::TagProperty::Key::Duration, Generated::TagPropertyKey::Duration},
    {Domain::TagProperty::Key::MixDuration, Generated::TagPropertyKey::MixDuration},
    {Domain::TagProperty::Key::XAxis, Generated::TagPropertyKey::XAxis},
    {Domain::TagProperty::Key::YAxis, Generated::TagPropertyKey::YAxis},
    {Domain::TagProperty::Key::Height, Generated::TagPropertyKey::Height},
    {Domain::TagProperty::Key::Width, Generated::TagPropertyKey::Width},
    {Domain::TagProperty::Key::TargetMonos, Generated::TagPropertyKey::TargetMonos},
    {Domain::TagProperty::Key::Levels, Generated::TagPropertyKey::Levels},
    {Domain::TagProperty::Key::Activation, Generated::TagPropertyKey::Activation},
    {Domain::TagProperty::Key::TriggerType, Generated::TagPropertyKey::TriggerType},
};

constexpr EnumAssociation<Domain::Tag::CommandType, Generated::CommandType::type> commandType{
    {Domain::Tag::CommandType::Custom, Generated::CommandType::Custom},
    {Domain::Tag::CommandType::GpiOut, Generated::CommandType::GpiOut},
    {Domain::Tag::CommandType::GpiOutOnEffect, Generated::CommandType::GpiOutOnEffect},
    {Domain::Tag::CommandType::GpiOutAvsp, Generated::CommandType::GpiOutAvsp},
    {Domain::Tag::CommandType::SwapAudio, Generated::CommandType::SwapAudio},
    {Domain::Tag::CommandType::LevelAudioIn, Generated::CommandType::LevelAudioIn},
    {Domain::Tag::CommandType::LevelAudioOut, Generated::CommandType::LevelAudioOut},
    {Domain::Tag::CommandType::Blurring, Generated::CommandType::Blurring},
    {Domain::Tag::CommandType::Mute, Generated::CommandType::Mute},
    {Domain::Tag::CommandType::Hide, Generated::CommandType::Hide},
    {Domain::Tag::CommandType::Comment, Generated::CommandType::Comment},
    {Domain::Tag::CommandType::Group, Generated::CommandType::Group},
    {Domain::Tag::CommandType::TriggerBroadcastIp, Generated::CommandType::TriggerBroadcastIp},
    {Domain::Tag::CommandType::VirtualElementVarId, Generated::CommandType::VirtualElementVarId},
    {Domain::Tag::CommandType::VirtualElementName, Generated::CommandType::VirtualElementName},
};

constexpr EnumAssociation<Domain::BoundaryType, Generated::BoundaryType::type> boundaryType{
    {Domain::BoundaryType::Absolute, Generated::BoundaryType::Absolute},
    {Domain::BoundaryType::RelativeClipCorresponding, Generated::BoundaryType::RelativeClipCorresponding},
    {Domain::BoundaryType::RelativeClipOpposite, Generated::BoundaryType::RelativeClipOpposite},
    {Domain::BoundaryType::RelativeSelfOpposite, Generated::BoundaryType::RelativeSelfOpposite},
};

constexpr EnumAssociation<Domain::EffectPosition, Generated::EffectPosition::type> effectPosition{
    {Domain::EffectPosition::None, Generated::EffectPosition::None},
    {Domain::EffectPosition::Before, Generated::EffectPosition::Before},
    {Domain::EffectPosition::After, Generated::EffectPosition::After},
    {Domain::EffectPosition::Center, Generated::EffectPosition::Center},
};

constexpr EnumAssociation<Domain::StillMode, Generated::StillMode::type> stillMode{
    {Domain::StillMode::None, Generated::StillMode::None},
    {Domain::StillMode::StopOnLastFrameOfPrevious, Generated::StillMode::StopOnLastFrameOfPrevious},
    {Domain::StillMode::StopOnFirstFrame, Generated::StillMode::StopOnFirstFrame},
    {Domain::StillMode::StopWithTransitionTimer, Generated::StillMode::StopWithTransitionTimer},
    {Domain::StillMode::PauseWithTransitionTimer, Generated::StillMode::PauseWithTransitionTimer},
};

constexpr EnumAssociation<Domain::VideoEffectType, Generated::VideoEffectType::type> videoEffectType{
    {Domain::VideoEffectType::None, Generated::VideoEffectType::None},
    {Domain::VideoEffectType::Cut, Generated::VideoEffectType::Cut},
    {Domain::VideoEffectType::Mix, Generated::VideoEffectType::Mix},
    {Domain::VideoEffectType::WipeLeftRight, Generated::VideoEffectType::WipeLeftRight},
    {Domain::VideoEffectType::WipeRightLeft, Generated::VideoEffectType::WipeRightLeft},
    {Domain::VideoEffectType::WipeUpDown, Generated::VideoEffectType::WipeUpDown},
    {Domain::VideoEffectType::WipeDownUp, Generated::VideoEffectType::WipeDownUp},
    {Domain::VideoEffectType::MixStill, Generated::VideoEffectType::MixStill},
    {Domain::VideoEffectType::WipeLeftRightStill, Generated::VideoEffectType::WipeLeftRightStill},
    {Domain::VideoEffectType::WipeRightLeftStill, Generated::VideoEffectType::WipeRightLeftStill},
    {Domain::VideoEffectType::WipeUpDownStill, Generated::VideoEffectType::WipeUpDownStill},
    {Domain::VideoEffectType::WipeDownUpStill, Generated::VideoEffectType::WipeDownUpStill},
    {Domain::VideoEffectType::FadeToBlack, Generated::VideoEffectType::FadeToBlack},
    {Domain::VideoEffectType::FadeFromBlack, Generated::VideoEffectType::FadeFromBlack},
    {Domain::VideoEffectType::FadeToFromBlack, Generated::VideoEffectType::FadeToFromBlack},
    {Domain::VideoEffectType::FadeToWhite, Generated::VideoEffectType::FadeToWhite},
    {Domain::VideoEffectType::FadeFromWhite, Generated::VideoEffectType::FadeFromWhite},
    {Domain::VideoEffectType::FadeToFromWhite, Generated::VideoEffectType::FadeToFromWhite},
    {Domain::VideoEffectType::FadeToColor, Generated::VideoEffectType::FadeToColor},
    {Domain::VideoEffectType::FadeFromColor, Generated::VideoEffectType::FadeFromColor},
    {Domain::VideoEffectType::FadeToFromColor, Generated::VideoEffectType::FadeToFromColor},
};

constexpr EnumAssociation<Domain::AudioEffectType, Generated::AudioEffectType::type> audioEffectType{
    {Domain::AudioEffectType::None, Generated::AudioEffectType::None},
    {Domain::AudioEffectType::Cut, Generated::AudioEffectType::Cut},
    {Domain::AudioEffectType::HardCut, Generated::AudioEffectType::HardCut},
    {Domain::AudioEffectType::Mix, Generated::AudioEffectType::Mix},
    {Domain::AudioEffectType::MicroMix, Generated::AudioEffectType::MicroMix},
    {Domain::AudioEffectType::MixAfterOutBound, Generated::AudioEffectType::MixAfterOutBound},
    {Domain::AudioEffectType::FadeToMute, Generated::AudioEffectType::FadeToMute},
    {Domain::AudioEffectType::FadeFromMute, Generated::AudioEffectType::FadeFromMute},
    {Domain::AudioEffectType::FadeToFromMute, Generated::AudioEffectType::FadeToFromMute},
};

constexpr EnumAssociation<Domain::TimeCodeRegenBase, Generated::TimeCodeRegenBase::type> timeCodeRegenBase{
    {Domain::TimeCodeRegenBase::Irq, Generated::TimeCodeRegenBase::Irq},
    {Domain::TimeCodeRegenBase::Field, Generated::TimeCodeRegenBase::Field},
};

constexpr EnumAssociation<Domain::TimeCodeRegenSource, Generated::TimeCodeRegenSource::type> timeCodeRegenSource{
    {Domain::TimeCodeRegenSource::PlaylistRefTimecode, Generated::TimeCodeRegenSource::PlaylistRefTimecode},
    {Domain::TimeCodeRegenSource::ElementTodTimecode, Generated::TimeCodeRegenSource::ElementTodTimecode},
    {Domain::TimeCodeRegenSource::ElementUserTimecode, Generated::TimeCodeRegenSource::ElementUserTimecode},
    {Domain::TimeCodeRegenSource::UserBitsAndTimecodeOfFirstAudioTrack,
     Generated::TimeCodeRegenSource::UserBitsAndTimecodeOfFirstAudioTrack},
};

constexpr EnumAssociation<Domain::TimeCodeRegenOutput, Generated::TimeCodeRegenOutput::type> timeCodeRegenOutput{
    {Domain::TimeCodeRegenOutput::None, Generated::TimeCodeRegenOutput::None},
    {Domain::TimeCodeRegenOutput::HangVitc, Generated::TimeCodeRegenOutput::HangVitc},
    {Domain::TimeCodeRegenOutput::HangLtc, Generated::TimeCodeRegenOutput::HangLtc},
    {Domain::TimeCodeRegenOutput::All, Generated::TimeCodeRegenOutput::All},
};

constexpr EnumAssociation<Domain::TimeCodeRegenType, Generated::TimeCodeRegenType::type> timeCodeRegenType{
    {Domain::TimeCodeRegenType::FullPlaylist, Generated::TimeCodeRegenType::FullPlaylist},
    {Domain::TimeCodeRegenType::ByElement, Generated::TimeCodeRegenType::ByElement},
};
} // namespace

Generated::TagPropertyType::type ToGeneratedEnum(Domain::TagProperty::Type const value) noexcept
{
    return tagPropertyType.ToGeneratedEnum(value);
}

Domain::TagProperty::Type FromGeneratedEnum(Generated::TagPropertyType::type const value) noexcept
{
    return tagPropertyType.FromGeneratedEnum(value);
}

Generated::TagPropertyKey::type ToGeneratedEnum(Domain::TagProperty::Key const value) noexcept
{
    return tagPropertyKey.ToGeneratedEnum(value);
}

Domain::TagProperty::Key FromGeneratedEnum(Generated::TagPropertyKey::type const value) noexcept
{
    return tagPropertyKey.FromGeneratedEnum(value);
}

Generated::CommandType::type ToGeneratedEnum(Domain::Tag::CommandType const value) noexcept
{
    return commandType.ToGeneratedEnum(value);
}

Domain::Tag::CommandType FromGeneratedEnum(Generated::CommandType::type const value) noexcept
{
    return commandType.FromGeneratedEnum(value);
}

Generated::BoundaryType::type ToGeneratedEnum(Domain::BoundaryType const value) noexcept
{
    return boundaryType.ToGeneratedEnum(value);
}

Domain::BoundaryType FromGeneratedEnum(Generated::BoundaryType::type const value) noexcept
{
    return boundaryType.FromGeneratedEnum(value);
}

Generated::EffectPosition::type ToGeneratedEnum(Domain::EffectPosition const value) noexcept
{
    return effectPosition.ToGeneratedEnum(value);
}

Domain::EffectPosition FromGeneratedEnum(Generated::EffectPosition::type const value) noexcept
{
    return effectPosition.FromGeneratedEnum(value);
}

Generated::StillMode::type ToGeneratedEnum(Domain::StillMode const value) noexcept
{
    return stillMode.ToGeneratedEnum(value);
}

Domain::StillMode FromGeneratedEnum(Generated::StillMode::type const value) noexcept
{
    return stillMode.FromGeneratedEnum(value);
}

Generated::VideoEffectType::type ToGeneratedEnum(Domain::VideoEffectType const value) noexcept
{
    return videoEffectType.ToGeneratedEnum(value);
}

Domain::VideoEffectType FromGeneratedEnum(Generated::VideoEffectType::type const value) noexcept
{
    return videoEffectType.FromGeneratedEnum(value);
}

Generated::AudioEffectType::type ToGeneratedEnum(Domain::AudioEffectType const value) noexcept
{
    return audioEffectType.ToGeneratedEnum(value);
}

Domain::AudioEffectType FromGeneratedEnum(Generated::AudioEffectType::type const value) noexcept
{
    return audioEffectType.FromGeneratedEnum(value);
}

Generated::TimeCodeRegenBase::type ToGeneratedEnum(Domain::TimeCodeRegenBase const value) noexcept
{
    return timeCodeRegenBase.ToGeneratedEnum(value);
}

Domain::TimeCodeRegenBase FromGeneratedEnum(Generated::TimeCodeRegenBase::type const value) noexcept
{
    return timeCodeRegenBase.FromGeneratedEnum(value);
}

Generated::TimeCodeRegenSource::type ToGeneratedEnum(Domain::TimeCodeRegenSource const value) noexcept
{
    return timeCodeRegenSource.ToGeneratedEnum(value);
}

Domain::TimeCodeRegenSource FromGeneratedEnum(Generated::TimeCodeRegenSource::type const value) noexcept
{
    return timeCodeRegenSource.FromGeneratedEnum(value);
}

Generated::TimeCodeRegenOutput::type ToGeneratedEnum(Domain::TimeCodeRegenOutput const value) noexcept
{
    return timeCodeRegenOutput.ToGeneratedEnum(value);
}

Domain::TimeCodeRegenOutput FromGeneratedEnum(Generated::TimeCodeRegenOutput::type const value) noexcept
{
    return timeCodeRegenOutput.FromGeneratedEnum(value);
}

Generated::TimeCodeRegenType::type ToGeneratedEnum(Domain::TimeCodeRegenType const value) noexcept
{
    return timeCodeRegenType.ToGeneratedEnum(value);
}

Domain::TimeCodeRegenType FromGeneratedEnum(Generated::TimeCodeRegenType::type const value) noexcept
{
    return timeCodeRegenType.FromGeneratedEnum(value);
}
} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences::EnumConverter

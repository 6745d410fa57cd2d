#pragma once

#include "Domain/CorvaneData/Sequences/Enums.h"
#include "Domain/CorvaneData/Sequences/Tag.h"
#include "Domain/CorvaneData/Sequences/TagProperty.h"
#include "generated/Element_types.h"
#include "generated/Sequence_types.h"
#include "generated/TagProperty_types.h"
#include "generated/Tag_types.h"

/// Converts the enumerations of the sequence family between the domain and the wire.
///
/// Every function looks its value up in a table and can't fail: a value outside the table gives the number 0 of the
/// result.
namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences::EnumConverter
{

/// @{

/// Returns the value on the other side from the enumeration's table.
Generated::TagPropertyType::type ToGeneratedEnum(Corvane::Data::Sequences::TagProperty::Type value) noexcept;
Corvane::Data::Sequences::TagProperty::Type FromGeneratedEnum(Generated::TagPropertyType::type value) noexcept;

Generated::TagPropertyKey::type ToGeneratedEnum(Corvane::Data::Sequences::TagProperty::Key value) noexcept;
Corvane::Data::Sequences::TagProperty::Key FromGeneratedEnum(Generated::TagPropertyKey::type value) noexcept;

Generated::CommandType::type ToGeneratedEnum(Corvane::Data::Sequences::Tag::CommandType value) noexcept;
Corvane::Data::Sequences::Tag::CommandType FromGeneratedEnum(Generated::CommandType::type value) noexcept;

Generated::BoundaryType::type ToGeneratedEnum(Corvane::Data::Sequences::BoundaryType value) noexcept;
Corvane::Data::Sequences::BoundaryType FromGeneratedEnum(Generated::BoundaryType::type value) noexcept;

Generated::EffectPosition::type ToGeneratedEnum(Corvane::Data::Sequences::EffectPosition value) noexcept;
Corvane::Data::Sequences::EffectPosition FromGeneratedEnum(Generated::EffectPosition::type value) noexcept;

Generated::StillMode::type ToGeneratedEnum(Corvane::Data::Sequences::StillMode value) noexcept;
Corvane::Data::Sequences::StillMode FromGeneratedEnum(Generated::StillMode::type value) noexcept;

Generated::VideoEffectType::type ToGeneratedEnum(Corvane::Data::Sequences::VideoEffectType value) noexcept;
Corvane::Data::Sequences::VideoEffectType FromGeneratedEnum(Generated::VideoEffectType::type value) noexcept;

Generated::AudioEffectType::type ToGeneratedEnum(Corvane::Data::Sequences::AudioEffectType value) noexcept;
Corvane::Data::Sequences::AudioEffectType FromGeneratedEnum(Generated::AudioEffectType::type value) noexcept;

Generated::TimeCodeRegenBase::type ToGeneratedEnum(Corvane::Data::Sequences::TimeCodeRegenBase value) noexcept;
Corvane::Data::Sequences::TimeCodeRegenBase FromGeneratedEnum(Generated::TimeCodeRegenBase::type value) noexcept;

Generated::TimeCodeRegenSource::type ToGeneratedEnum(Corvane::Data::Sequences::TimeCodeRegenSource value) noexcept;
Corvane::Data::Sequences::TimeCodeRegenSource FromGeneratedEnum(Generated::TimeCodeRegenSource::type value) noexcept;

Generated::TimeCodeRegenOutput::type ToGeneratedEnum(Corvane::Data::Sequences::TimeCodeRegenOutput value) noexcept;
Corvane::Data::Sequences::TimeCodeRegenOutput FromGeneratedEnum(Generated::TimeCodeRegenOutput::type value) noexcept;

Generated::TimeCodeRegenType::type ToGeneratedEnum(Corvane::Data::Sequences::TimeCodeRegenType value) noexcept;
Corvane::Data::Sequences::TimeCodeRegenType FromGeneratedEnum(Generated::TimeCodeRegenType::type value) noexcept;

/// @}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences::EnumConverter

#pragma once

#include "Domain/CorvaneData/Channels/Enums.h"
#include "generated/PlayerInfoOnAir_types.h"
#include "generated/PlayerState_types.h"
#include "generated/RecorderState_types.h"

/// Converts the enumerations of the channel family between the domain and the wire.
///
/// Every function looks its value up in a table and can't fail: a value outside the table gives the number 0 of the
/// result.
namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels::EnumConverter
{

/// @{

/// Returns the value on the other side from the enumeration's table.
Generated::PlayerModeStatus::type ToGeneratedEnum(Corvane::Data::Channels::PlayerModeStatus value) noexcept;
Corvane::Data::Channels::PlayerModeStatus FromGeneratedEnum(Generated::PlayerModeStatus::type value) noexcept;

Generated::PlayerModeType::type ToGeneratedEnum(Corvane::Data::Channels::PlayerModeType value) noexcept;
Corvane::Data::Channels::PlayerModeType FromGeneratedEnum(Generated::PlayerModeType::type value) noexcept;

Generated::PlayingLoopMode::type ToGeneratedEnum(Corvane::Data::Channels::PlayingLoopMode value) noexcept;
Corvane::Data::Channels::PlayingLoopMode FromGeneratedEnum(Generated::PlayingLoopMode::type value) noexcept;

Generated::PlayoutConfig::type ToGeneratedEnum(Corvane::Data::Channels::PlayoutConfig value) noexcept;
Corvane::Data::Channels::PlayoutConfig FromGeneratedEnum(Generated::PlayoutConfig::type value) noexcept;

Generated::RecorderModeStatus::type ToGeneratedEnum(Corvane::Data::Channels::RecorderModeStatus value) noexcept;
Corvane::Data::Channels::RecorderModeStatus FromGeneratedEnum(Generated::RecorderModeStatus::type value) noexcept;

/// @}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels::EnumConverter

#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Multiviewer/ClipCreationBoundaries.h"
#include "Domain/CorvaneData/Multiviewer/Enums.h"
#include "Domain/CorvaneData/Optional.h"

#include <cstdint>
#include <string>

namespace Talvo::Corvane::Multiviewer
{

/// What a multiviewer shows of one player in place of the player's own data. All but the player may be missing.
class PlayerDataOverrides
{
public:
    /// The player.
    Data::Channels::Guid const& PlayerGuid() const noexcept { return playerGuid_; }
    /// Sets the player.
    void PlayerGuid(Data::Channels::Guid const& value) noexcept { playerGuid_ = value; }

    /// Whether the player is the first controlled media output.
    Data::Optional<bool> IsFirstControlledMediaOutput() const { return isFirstControlledMediaOutput_; }
    /// Sets the override.
    void IsFirstControlledMediaOutput(bool value) { isFirstControlledMediaOutput_ = value; }

    /// How the player is controlled.
    Data::Optional<ControlType> ControlMode() const { return controlMode_; }
    /// Sets the override.
    void ControlMode(ControlType value) { controlMode_ = value; }

    /// Which output is shown.
    Data::Optional<ProgramType> ProgramMode() const { return programMode_; }
    /// Sets the override.
    void ProgramMode(ProgramType value) { programMode_ = value; }

    /// Whether post-roll is enabled.
    Data::Optional<bool> IsPostRollEnabled() const { return isPostRollEnabled_; }
    /// Sets the override.
    void IsPostRollEnabled(bool value) { isPostRollEnabled_ = value; }

    /// The text that is shown.
    Data::Optional<std::string> Message() const { return message_; }
    /// Sets the override.
    void Message(std::string const& value) { message_ = value; }

    /// The in and out points that a clip would be created with, to be changed in place.
    ClipCreationBoundaries& GetClipCreationBoudaries() noexcept { return clipCreationBoundaries_; }
    /// The in and out points that a clip would be created with.
    ClipCreationBoundaries const& GetClipCreationBoudaries() const noexcept { return clipCreationBoundaries_; }

    bool operator==(PlayerDataOverrides const&) const = default;

private:
    Data::Channels::Guid playerGuid_;
    Data::Optional<bool> isFirstControlledMediaOutput_;
    Data::Optional<ControlType> controlMode_;
    Data::Optional<ProgramType> programMode_;
    Data::Optional<bool> isPostRollEnabled_;
    Data::Optional<std::string> message_;
    ClipCreationBoundaries clipCreationBoundaries_;

public:
    // Carried along when the record is copied; they stay in the process.
    Data::Optional<std::int32_t> reservedValueA;
    Data::Optional<std::int32_t> reservedValueB;
};

} // namespace Talvo::Corvane::Multiviewer

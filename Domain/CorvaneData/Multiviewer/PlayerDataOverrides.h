#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Multiviewer/ClipCreationBoundaries.h"
#include "Domain/CorvaneData/Multiviewer/Enums.h"
#include "Domain/CorvaneData/Optional.h"

#include <cstdint>
#include <string>

namespace Talvo::Corvane::Multiviewer
{

/// The data that a multiviewer shows for one player instead of the player's own. Every value except the player may be
/// missing.
class PlayerDataOverrides
{
public:
    /// The player.
    Data::Channels::Guid const& PlayerGuid() const noexcept { return playerGuid_; }
    /// Sets the player.
    void PlayerGuid(Data::Channels::Guid const& value) noexcept { playerGuid_ = value; }

    /// Whether the player is the first controlled media output.
    Data::Optional<bool> IsFirstControlledMediaOutput() const { return isFirstControlledMediaOutput_; }
    /// Sets whether the player is the first controlled media output.
    void IsFirstControlledMediaOutput(bool value) { isFirstControlledMediaOutput_ = value; }

    /// How the player is controlled.
    Data::Optional<ControlType> ControlMode() const { return controlMode_; }
    /// Sets how the player is controlled.
    void ControlMode(ControlType value) { controlMode_ = value; }

    /// Which output is shown.
    Data::Optional<ProgramType> ProgramMode() const { return programMode_; }
    /// Sets which output is shown.
    void ProgramMode(ProgramType value) { programMode_ = value; }

    /// Whether post-roll is enabled.
    Data::Optional<bool> IsPostRollEnabled() const { return isPostRollEnabled_; }
    /// Sets whether post-roll is enabled.
    void IsPostRollEnabled(bool value) { isPostRollEnabled_ = value; }

    /// The text to show.
    Data::Optional<std::string> Message() const { return message_; }
    /// Sets the text to show.
    void Message(std::string const& value) { message_ = value; }

    /// The in and out points for creating a clip, as a mutable reference.
    ClipCreationBoundaries& GetClipCreationBoudaries() noexcept { return clipCreationBoundaries_; }
    /// The in and out points for creating a clip.
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
    // Copied with the object, but not sent to the wire.
    Data::Optional<std::int32_t> reservedValueA;
    Data::Optional<std::int32_t> reservedValueB;
};

} // namespace Talvo::Corvane::Multiviewer

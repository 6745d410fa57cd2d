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
    Data::Channels::Guid const& PlayerGuid() const noexcept { return playerGuid_; }
    void PlayerGuid(Data::Channels::Guid const& value) noexcept { playerGuid_ = value; }

    Data::Optional<bool> IsFirstControlledMediaOutput() const { return isFirstControlledMediaOutput_; }
    void IsFirstControlledMediaOutput(bool value) { isFirstControlledMediaOutput_ = value; }

    Data::Optional<ControlType> ControlMode() const { return controlMode_; }
    void ControlMode(ControlType value) { controlMode_ = value; }

    Data::Optional<ProgramType> ProgramMode() const { return programMode_; }
    void ProgramMode(ProgramType value) { programMode_ = value; }

    Data::Optional<bool> IsPostRollEnabled() const { return isPostRollEnabled_; }
    void IsPostRollEnabled(bool value) { isPostRollEnabled_ = value; }

    Data::Optional<std::string> Message() const { return message_; }
    void Message(std::string const& value) { message_ = value; }

    ClipCreationBoundaries& GetClipCreationBoudaries() noexcept { return clipCreationBoundaries_; }
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

#pragma once

#include "Domain/CorvaneData/Clips/Enums.h"
#include "Domain/CorvaneData/Clips/Groups/Angle.h"
#include "Domain/CorvaneData/Clips/Groups/Guid.h"
#include "Domain/CorvaneData/Clips/Guid.h"

#include <array>
#include <vector>

namespace Talvo::Corvane::Data::Clips::Groups
{

/// The angles of one action: at most one clip a camera, of which one may be the primary and one the secondary angle.
class AnglesGroup
{
public:
    /// The place of one camera. A new one is free.
    struct AngleSlot
    {
        bool isFree = true;
        Camera camera = Camera::NotSet;
        Clips::Guid clipGuid;
        PreferentialCamera preferentialCamera = PreferentialCamera::None;

        bool operator==(AngleSlot const&) const = default;
    };

    Guid groupGuid;
    std::array<AngleSlot, 15> angleSlots; ///< one a camera, in camera order: A to L, X, Y, Z

    /// A group without angles.
    explicit AnglesGroup(Guid const& guid) noexcept
        : groupGuid(guid)
    {
    }

    /// Fills the slot of the camera and overwrites what it held. Ignored for Camera::NotSet and numbers that are no camera.
    void AddAngle(Camera camera, Clips::Guid const& clipGuid, PreferentialCamera preferentialCamera) noexcept;

    /// The first angle in camera order that is marked Primary, else Angle::Empty().
    Angle PrimaryAngle() const noexcept;

    /// The first angle in camera order that is marked Secondary, else Angle::Empty().
    Angle SecondaryAngle() const noexcept;

    /// All angles but the primary and the secondary one, in camera order. A second angle marked Primary or Secondary is
    /// among them.
    std::vector<Angle> OtherAngles() const;

    bool operator==(AnglesGroup const&) const = default;

private:
    AngleSlot const* FirstMarked(PreferentialCamera mark) const noexcept;
};

} // namespace Talvo::Corvane::Data::Clips::Groups

#pragma once

#include "Domain/CorvaneData/Clips/Enums.h"
#include "Domain/CorvaneData/Clips/Groups/Angle.h"
#include "Domain/CorvaneData/Clips/Groups/Guid.h"
#include "Domain/CorvaneData/Clips/Guid.h"

#include <array>
#include <vector>

namespace Talvo::Corvane::Data::Clips::Groups
{

/// The angles of one action: at most one clip per camera. One angle may be the primary and one the secondary angle.
class AnglesGroup
{
public:
    /// The slot of one camera. A new slot is free.
    struct AngleSlot
    {
        bool isFree = true;
        Camera camera = Camera::NotSet;
        Clips::Guid clipGuid;
        PreferentialCamera preferentialCamera = PreferentialCamera::None;

        bool operator==(AngleSlot const&) const = default;
    };

    Guid groupGuid;
    std::array<AngleSlot, 15> angleSlots; ///< one per camera, in camera order: A to L, X, Y, Z

    /// Constructs a group without angles.
    explicit AnglesGroup(Guid const& guid) noexcept
        : groupGuid(guid)
    {
    }

    /// Fills the slot of the camera and overwrites its contents. Does nothing for Camera::NotSet and for numbers that
    /// are not a camera.
    void AddAngle(Camera camera, Clips::Guid const& clipGuid, PreferentialCamera preferentialCamera) noexcept;

    /// The first angle in camera order that is marked Primary, or Angle::Empty() if there is none.
    Angle PrimaryAngle() const noexcept;

    /// The first angle in camera order that is marked Secondary, or Angle::Empty() if there is none.
    Angle SecondaryAngle() const noexcept;

    /// All angles except the primary and the secondary one, in camera order. A second angle marked Primary or Secondary
    /// is included.
    std::vector<Angle> OtherAngles() const;

    bool operator==(AnglesGroup const&) const = default;

private:
    AngleSlot const* FirstMarked(PreferentialCamera mark) const noexcept;
};

} // namespace Talvo::Corvane::Data::Clips::Groups

#pragma once

#include "Domain/CorvaneData/Clips/Enums.h"
#include "Domain/CorvaneData/Clips/Guid.h"

namespace Talvo::Corvane::Data::Clips::Groups
{

/// One camera's view within an angles group: the camera and the clip that it recorded.
struct Angle
{
    Camera camera = Camera::NotSet;
    Clips::Guid clipGuid;

    /// The value for "no angle": Camera::NotSet with the empty identifier. An angle with a camera but without a clip is
    /// not empty.
    static Angle const& Empty() noexcept;

    bool operator==(Angle const&) const = default;
};

} // namespace Talvo::Corvane::Data::Clips::Groups

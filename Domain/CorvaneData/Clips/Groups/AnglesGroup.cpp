#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace Talvo::Corvane::Data::Clips::Groups
{

namespace
{

Angle AngleOf(AnglesGroup::AngleSlot const* slot) noexcept
{
    return slot ? Angle{slot->camera, slot->clipGuid} : Angle::Empty();
}

} // namespace

void AnglesGroup::AddAngle(Camera camera, Clips::Guid const& clipGuid, PreferentialCamera preferentialCamera) noexcept
{
    // Unsigned, so that NotSet (0) and negative numbers are beyond the last slot.
    auto const index = static_cast<std::uint32_t>(camera) - 1;
    if (index < angleSlots.size()) angleSlots[index] = AngleSlot{false, camera, clipGuid, preferentialCamera};
}

Angle AnglesGroup::PrimaryAngle() const noexcept
{
    return AngleOf(FirstMarked(PreferentialCamera::Primary));
}

Angle AnglesGroup::SecondaryAngle() const noexcept
{
    return AngleOf(FirstMarked(PreferentialCamera::Secondary));
}

std::vector<Angle> AnglesGroup::OtherAngles() const
{
    std::vector<Angle> others;
    others.reserve(angleSlots.size());
    bool hasPrimary = false;
    bool hasSecondary = false;
    for (AngleSlot const& slot : angleSlots)
    {
        if (slot.isFree) continue;
        if (slot.preferentialCamera == PreferentialCamera::Primary && !std::exchange(hasPrimary, true)) continue;
        if (slot.preferentialCamera == PreferentialCamera::Secondary && !std::exchange(hasSecondary, true)) continue;
        others.push_back(AngleOf(&slot));
    }
    return others;
}

AnglesGroup::AngleSlot const* AnglesGroup::FirstMarked(PreferentialCamera mark) const noexcept
{
    auto const slot = std::find_if(angleSlots.begin(), angleSlots.end(),
                                   [mark](AngleSlot const& candidate)
                                   { return !candidate.isFree && candidate.preferentialCamera == mark; });
    return slot == angleSlots.end() ? nullptr : &*slot;
}

} // namespace Talvo::Corvane::Data::Clips::Groups

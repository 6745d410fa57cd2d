#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

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
    auto const isOther = [primary = FirstMarked(PreferentialCamera::Primary),
                          secondary = FirstMarked(PreferentialCamera::Secondary)](AngleSlot const& slot)
    { return !slot.isFree && &slot != primary && &slot != secondary; };

    std::vector<Angle> others;
    others.reserve(static_cast<std::size_t>(std::count_if(angleSlots.begin(), angleSlots.end(), isOther)));
    for (AngleSlot const& slot : angleSlots)
        if (isOther(slot)) others.push_back(AngleOf(&slot));
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

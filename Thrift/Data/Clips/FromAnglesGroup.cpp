#include "Thrift/Data/Clips/FromAnglesGroup.h"

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Detail/Results.h"
#include "generated/AnglesGroup_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

using namespace Detail;
using Corvane::Data::Clips::Groups::Angle;

ConversionResult
AnglesGroupToThriftConverter::To(Corvane::Data::Clips::Groups::AnglesGroup const& source,
                                 Corvane::Data::Clips::Groups::Generated::AnglesGroup& destination) const noexcept
{
    static GuidToThriftConverter const guidConverter;

    // An empty angle is not written; a later angle of the same camera replaces an earlier one. Most come in camera order.
    auto const send = [&destination](Angle const& angle, Generated::PreferentialCamera::type const preference)
    {
        if (angle == Angle::Empty()) return Success();
        auto& angles = destination.angles;
        auto& item = angles.try_emplace(angles.end(), EnumConverter::ToGeneratedEnum(angle.camera))->second;
        item.preferencialCamera = preference;
        return guidConverter.To(angle.clipGuid, item.clipId);
    };

    if (auto const result = guidConverter.To(source.groupGuid, destination.id); !result.success) return Nested(result);
    destination.angles.clear();
    if (auto const result = send(source.PrimaryAngle(), Generated::PreferentialCamera::Primary); !result.success)
        return Nested(result);
    if (auto const result = send(source.SecondaryAngle(), Generated::PreferentialCamera::Secondary); !result.success)
        return Nested(result);
    for (auto const& angle : source.OtherAngles())
    {
        if (auto const result = send(angle, Generated::PreferentialCamera::None); !result.success)
            return Nested(result);
    }
    return Success();
}

ConversionResult
AnglesGroupToThriftConverter::To(Corvane::Data::Clips::Groups::AnglesGroup&& source,
                                 Corvane::Data::Clips::Groups::Generated::AnglesGroup& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips

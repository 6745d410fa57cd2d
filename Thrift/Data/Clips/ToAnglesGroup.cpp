#include "Thrift/Data/Clips/ToAnglesGroup.h"

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/AnglesGroup_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

using namespace Detail;
using EnumConverter::FromGeneratedEnum;

ConversionResult ThriftToAnglesGroupConverter::To(Corvane::Data::Clips::Groups::Generated::AnglesGroup const& source,
                                                  Corvane::Data::Clips::Groups::AnglesGroup& destination) const noexcept
{
    static ThriftToGuidConverter const guidConverter;

    Corvane::Data::Clips::Groups::Guid groupGuid;
    if (auto const result = Read("id", guidConverter, source.id, groupGuid); !result.success) return Nested(result);

    destination = Corvane::Data::Clips::Groups::AnglesGroup(groupGuid);
    for (auto const& [camera, item] : source.angles)
    {
        Corvane::Data::Clips::Guid clipGuid;
        if (auto const result = Read("angles", guidConverter, item.clipId, clipGuid); !result.success)
            return Nested(result);
        destination.AddAngle(FromGeneratedEnum(camera), clipGuid, FromGeneratedEnum(item.preferencialCamera));
    }
    return Success();
}

ConversionResult ThriftToAnglesGroupConverter::To(Corvane::Data::Clips::Groups::Generated::AnglesGroup&& source,
                                                  Corvane::Data::Clips::Groups::AnglesGroup& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips

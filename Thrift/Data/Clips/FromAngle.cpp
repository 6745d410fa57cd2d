#include "Thrift/Data/Clips/FromAngle.h"

#include "Domain/CorvaneData/Clips/Groups/Angle.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/FromGuid.h"
#include "generated/Angle_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

ConversionResult AngleToThriftConverter::To(Corvane::Data::Clips::Groups::Angle const& source,
                                            Corvane::Data::Clips::Groups::Generated::Angle& destination) const noexcept
{
    static GuidToThriftConverter const guidConverter;

    destination.camera = EnumConverter::ToGeneratedEnum(source.camera);
    return guidConverter.To(source.clipGuid, destination.clipId);
}

ConversionResult AngleToThriftConverter::To(Corvane::Data::Clips::Groups::Angle&& source,
                                            Corvane::Data::Clips::Groups::Generated::Angle& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips

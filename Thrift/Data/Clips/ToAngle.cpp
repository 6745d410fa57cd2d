#include "Thrift/Data/Clips/ToAngle.h"

#include "Domain/CorvaneData/Clips/Groups/Angle.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/Angle_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

using namespace Detail;

ConversionResult ThriftToAngleConverter::To(Corvane::Data::Clips::Groups::Generated::Angle const& source,
                                            Corvane::Data::Clips::Groups::Angle& destination) const noexcept
{
    static ThriftToGuidConverter const guidConverter;

    Corvane::Data::Clips::Guid clipGuid;
    if (auto const result = Read("clipId", guidConverter, source.clipId, clipGuid); !result.success)
        return Nested(result);

    destination = {EnumConverter::FromGeneratedEnum(source.camera), clipGuid};
    return Success();
}

ConversionResult ThriftToAngleConverter::To(Corvane::Data::Clips::Groups::Generated::Angle&& source,
                                            Corvane::Data::Clips::Groups::Angle& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips

#include "Thrift/Data/Channels/ToLoadBoundary.h"

#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Widths.h"
#include "generated/LoadBoundary_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

using namespace Detail;
using Corvane::Data::Channels::Boundary;
using Generated::LoadBoundaryType;

namespace
{

Boundary::RelativeTo Reference(LoadBoundaryType::type const type) noexcept
{
    switch (type)
    {
    case LoadBoundaryType::RelativeToCorrespondingClipBoundary:
        return Boundary::RelativeTo::RelativeToCorrespondingClipBoundary;
    case LoadBoundaryType::RelativeToOppositeClipBoundary:
        return Boundary::RelativeTo::RelativeToOppositeClipBoundary;
    default: // including unknown types
        return Boundary::RelativeTo::RelativeToOppositeLoadBoundary;
    }
}

} // namespace

ConversionResult ThriftToLoadBoundaryConverter::To(Generated::LoadBoundary const& source,
                                                   Boundary& destination) const noexcept
{
    auto const& specialized = source.specializedLoadBoundary;
    bool const isAbsolute = source.type == LoadBoundaryType::Absolute;
    bool const hasMember =
        isAbsolute ? specialized.__isset.absoluteLoadBoundary : specialized.__isset.relativeLoadBoundary;
    if (!source.__isset.type || !source.__isset.specializedLoadBoundary || !hasMember)
        return Failure("LoadBoundary is empty");

    destination = isAbsolute ? Boundary::AbsoluteBoundary({specialized.absoluteLoadBoundary.timepoint})
                             : Boundary::RelativeBoundary(Reference(source.type),
                                                          LowWord(specialized.relativeLoadBoundary.fieldCount));
    return Success();
}

ConversionResult ThriftToLoadBoundaryConverter::To(Generated::LoadBoundary&& source,
                                                   Boundary& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels

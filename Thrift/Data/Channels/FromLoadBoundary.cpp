#include "Thrift/Data/Channels/FromLoadBoundary.h"

#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Widths.h"
#include "generated/LoadBoundary_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

using namespace Detail;
using Corvane::Data::Channels::Boundary;

ConversionResult LoadBoundaryToThriftConverter::To(Boundary const& source,
                                                   Generated::LoadBoundary& destination) const noexcept
{
    using Generated::LoadBoundaryType;
    auto& type = TALVO_FLAGGED(destination, type);
    auto& specialized = TALVO_FLAGGED(destination, specializedLoadBoundary);

    if (source.IsAbsolute())
    {
        type = LoadBoundaryType::Absolute;
        TALVO_FLAGGED(TALVO_FLAGGED(specialized, absoluteLoadBoundary), timepoint) = source.Timepoint().position;
        return Success();
    }
    switch (source.GetRelativeTo())
    {
    case Boundary::RelativeTo::RelativeToCorrespondingClipBoundary:
        type = LoadBoundaryType::RelativeToCorrespondingClipBoundary;
        break;
    case Boundary::RelativeTo::RelativeToOppositeClipBoundary:
        type = LoadBoundaryType::RelativeToOppositeClipBoundary;
        break;
    case Boundary::RelativeTo::RelativeToOppositeLoadBoundary:
        type = LoadBoundaryType::RelativeToOppositeLoadBoundary;
        break;
    }
    TALVO_FLAGGED(TALVO_FLAGGED(specialized, relativeLoadBoundary), fieldCount) = Widened(source.FieldCount());
    return Success();
}

ConversionResult LoadBoundaryToThriftConverter::To(Boundary&& source,
                                                   Generated::LoadBoundary& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels

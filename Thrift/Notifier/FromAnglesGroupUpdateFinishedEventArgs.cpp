#include "Thrift/Notifier/FromAnglesGroupUpdateFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/AnglesGroupUpdateFinishedEventArgs.h"
#include "Thrift/Data/Clips/FromAnglesGroup.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/FromClipCommandEventArgs.h"
#include "generated/AnglesGroupUpdateEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult AnglesGroupUpdateFinishedEventArgsToThriftConverter::To(
    Notification::AnglesGroupUpdateFinishedEventArgs const& source,
    Generated::AnglesGroupUpdateFinishedEventArgs& destination) const noexcept
{
    static ClipCommandEventArgsToThriftConverter const parentConverter;
    static Data::Clips::AnglesGroupToThriftConverter const anglesGroupToThriftConverter;
    auto& wireEvent = destination.updateEventArgs;

    if (auto const result = parentConverter.To(source, wireEvent.clipCommandEventArgs); !result.success)
        return Nested(result);
    wireEvent.databaseRevision = source.databaseRevision;
    return anglesGroupToThriftConverter.To(source.anglesGroup, wireEvent.anglesGroup);
}

ConversionResult AnglesGroupUpdateFinishedEventArgsToThriftConverter::To(
    Notification::AnglesGroupUpdateFinishedEventArgs&& source,
    Generated::AnglesGroupUpdateFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

#include "Thrift/Notifier/FromAnglesGroupDeletionFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/AnglesGroupDeletionFinishedEventArgs.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/FromClipCommandEventArgs.h"
#include "generated/AnglesGroupDeletionEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult AnglesGroupDeletionFinishedEventArgsToThriftConverter::To(
    Notification::AnglesGroupDeletionFinishedEventArgs const& source,
    Generated::AnglesGroupDeletionFinishedEventArgs& destination) const noexcept
{
    static ClipCommandEventArgsToThriftConverter const parentConverter;
    static Data::GuidToThriftConverter const guidToThriftConverter;
    auto& wireEvent = destination.deletionEventArgs;

    if (auto const result = parentConverter.To(source, wireEvent.clipCommandEventArgs); !result.success)
        return Nested(result);
    wireEvent.databaseRevision = source.databaseRevision;
    return guidToThriftConverter.To(source.anglesGroupId, wireEvent.anglesGroupId);
}

ConversionResult AnglesGroupDeletionFinishedEventArgsToThriftConverter::To(
    Notification::AnglesGroupDeletionFinishedEventArgs&& source,
    Generated::AnglesGroupDeletionFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

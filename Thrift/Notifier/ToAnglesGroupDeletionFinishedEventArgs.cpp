#include "Thrift/Notifier/ToAnglesGroupDeletionFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/AnglesGroupDeletionFinishedEventArgs.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ToClipCommandEventArgs.h"
#include "generated/AnglesGroupDeletionEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToAnglesGroupDeletionFinishedEventArgsConverter::To(
    Generated::AnglesGroupDeletionFinishedEventArgs const& source,
    Notification::AnglesGroupDeletionFinishedEventArgs& destination) const noexcept
{
    static ThriftToClipCommandEventArgsConverter const thriftToClipCommandEventArgsConverter;
    static Data::ThriftToGuidConverter const thriftToGuidConverter;
    auto const& wireEvent = source.deletionEventArgs;

    Corvane::Data::Clips::Groups::Guid anglesGroupId;
    if (auto const result =
            Read("deletionEventArgs.anglesGroupId", thriftToGuidConverter, wireEvent.anglesGroupId, anglesGroupId);
        !result.success)
        return Nested(result);
    destination = Notification::AnglesGroupDeletionFinishedEventArgs(wireEvent.databaseRevision,
                                                                     Corvane::Data::Guid::Empty(), anglesGroupId);
    // Converted last: if the block fails, everything else in the event is filled in.
    return Read("deletionEventArgs.clipCommandEventArgs", thriftToClipCommandEventArgsConverter,
                wireEvent.clipCommandEventArgs, destination);
}

ConversionResult ThriftToAnglesGroupDeletionFinishedEventArgsConverter::To(
    Generated::AnglesGroupDeletionFinishedEventArgs&& source,
    Notification::AnglesGroupDeletionFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

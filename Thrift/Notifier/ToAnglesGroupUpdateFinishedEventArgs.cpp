#include "Thrift/Notifier/ToAnglesGroupUpdateFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/AnglesGroupUpdateFinishedEventArgs.h"
#include "Thrift/Data/Clips/ToAnglesGroup.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ToClipCommandEventArgs.h"
#include "generated/AnglesGroupUpdateEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToAnglesGroupUpdateFinishedEventArgsConverter::To(
    Generated::AnglesGroupUpdateFinishedEventArgs const& source,
    Notification::AnglesGroupUpdateFinishedEventArgs& destination) const noexcept
{
    static ThriftToClipCommandEventArgsConverter const thriftToClipCommandEventArgsConverter;
    static Data::Clips::ThriftToAnglesGroupConverter const thriftToAnglesGroupConverter;
    auto const& wireEvent = source.updateEventArgs;

    Corvane::Data::Clips::Groups::AnglesGroup anglesGroup{Corvane::Data::Clips::Groups::Guid()};
    if (auto const result =
            Read("updateEventArgs.anglesGroup", thriftToAnglesGroupConverter, wireEvent.anglesGroup, anglesGroup);
        !result.success)
        return Nested(result);
    destination = Notification::AnglesGroupUpdateFinishedEventArgs(wireEvent.databaseRevision,
                                                                   Corvane::Data::Guid::Empty(), anglesGroup);
    // Converted last: if the block fails, everything else in the event is filled in.
    return Read("updateEventArgs.clipCommandEventArgs", thriftToClipCommandEventArgsConverter,
                wireEvent.clipCommandEventArgs, destination);
}

ConversionResult ThriftToAnglesGroupUpdateFinishedEventArgsConverter::To(
    Generated::AnglesGroupUpdateFinishedEventArgs&& source,
    Notification::AnglesGroupUpdateFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

#include "Thrift/Notifier/ToAnglesGroupCreationEventArgs.h"

#include "Domain/CorvaneData/Notification/AnglesGroupCreationEventArgs.h"
#include "Thrift/Data/Clips/ToAnglesGroup.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/ToClipCommandEventArgs.h"
#include "generated/AnglesGroupCreationEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToAnglesGroupCreationEventArgsConverter::To(
    Generated::AnglesGroupCreationEventArgs const& source,
    Notification::AnglesGroupCreationEventArgs& destination) const noexcept
{
    static ThriftToClipCommandEventArgsConverter const thriftToClipCommandEventArgsConverter;
    static Data::Clips::ThriftToAnglesGroupConverter const thriftToAnglesGroupConverter;

    Corvane::Data::Clips::Groups::AnglesGroup anglesGroup{Corvane::Data::Clips::Groups::Guid()};
    if (auto const result = Read("anglesGroup", thriftToAnglesGroupConverter, source.anglesGroup, anglesGroup);
        !result.success)
        return Nested(result);
    destination =
        Notification::AnglesGroupCreationEventArgs(source.databaseRevision, Corvane::Data::Guid::Empty(), anglesGroup);
    // Converted last: if the block fails, everything else in the event is filled in.
    return Read("clipCommandEventArgs", thriftToClipCommandEventArgsConverter, source.clipCommandEventArgs,
                destination);
}

ConversionResult ThriftToAnglesGroupCreationEventArgsConverter::To(
    Generated::AnglesGroupCreationEventArgs&& source,
    Notification::AnglesGroupCreationEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

#include "Thrift/Notifier/ToAnglesGroupCreationFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/AnglesGroupCreationFinishedEventArgs.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Notifier/ToAnglesGroupCreationEventArgs.h"
#include "generated/AnglesGroupCreationEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult ThriftToAnglesGroupCreationFinishedEventArgsConverter::To(
    Generated::AnglesGroupCreationFinishedEventArgs const& source,
    Notification::AnglesGroupCreationFinishedEventArgs& destination) const noexcept
{
    static ThriftToAnglesGroupCreationEventArgsConverter const thriftToAnglesGroupCreationEventArgsConverter;

    return Read("creationEventArgs", thriftToAnglesGroupCreationEventArgsConverter, source.creationEventArgs,
                destination);
}

ConversionResult ThriftToAnglesGroupCreationFinishedEventArgsConverter::To(
    Generated::AnglesGroupCreationFinishedEventArgs&& source,
    Notification::AnglesGroupCreationFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

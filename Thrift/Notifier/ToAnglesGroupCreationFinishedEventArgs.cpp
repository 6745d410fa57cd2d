#include "Thrift/Notifier/ToAnglesGroupCreationFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/AnglesGroupCreationFinishedEventArgs.h"
#include "Thrift/Notifier/ToAnglesGroupCreationEventArgs.h"
#include "generated/AnglesGroupCreationEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

ConversionResult ThriftToAnglesGroupCreationFinishedEventArgsConverter::To(
    Generated::AnglesGroupCreationFinishedEventArgs const& source,
    Notification::AnglesGroupCreationFinishedEventArgs& destination) const noexcept
{
    static ThriftToAnglesGroupCreationEventArgsConverter const thriftToAnglesGroupCreationEventArgsConverter;

    return thriftToAnglesGroupCreationEventArgsConverter.To(source.creationEventArgs, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

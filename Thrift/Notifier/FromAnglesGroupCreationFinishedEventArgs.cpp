#include "Thrift/Notifier/FromAnglesGroupCreationFinishedEventArgs.h"

#include "Domain/CorvaneData/Notification/AnglesGroupCreationFinishedEventArgs.h"
#include "Thrift/Notifier/FromAnglesGroupCreationEventArgs.h"
#include "generated/AnglesGroupCreationEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

ConversionResult AnglesGroupCreationFinishedEventArgsToThriftConverter::To(
    Notification::AnglesGroupCreationFinishedEventArgs const& source,
    Generated::AnglesGroupCreationFinishedEventArgs& destination) const noexcept
{
    static AnglesGroupCreationEventArgsToThriftConverter const anglesGroupCreationEventArgsToThriftConverter;

    return anglesGroupCreationEventArgsToThriftConverter.To(source, destination.creationEventArgs);
}

ConversionResult AnglesGroupCreationFinishedEventArgsToThriftConverter::To(
    Notification::AnglesGroupCreationFinishedEventArgs&& source,
    Generated::AnglesGroupCreationFinishedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

#include "Thrift/Notifier/FromAnglesGroupCreationFailedEventArgs.h"

#include "Domain/CorvaneData/Notification/AnglesGroupCreationFailedEventArgs.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/FromAnglesGroupCreationEventArgs.h"
#include "generated/AnglesGroupCreationEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult AnglesGroupCreationFailedEventArgsToThriftConverter::To(
    Notification::AnglesGroupCreationFailedEventArgs const& source,
    Generated::AnglesGroupCreationFailedEventArgs& destination) const noexcept
{
    static AnglesGroupCreationEventArgsToThriftConverter const anglesGroupCreationEventArgsToThriftConverter;

    if (auto const result = anglesGroupCreationEventArgsToThriftConverter.To(source, destination.creationEventArgs);
        !result.success)
        return Nested(result);
    destination.result = Data::OperationResultConverter::To(source.result);
    destination.internalResult = source.internalResult;
    return Success();
}

ConversionResult AnglesGroupCreationFailedEventArgsToThriftConverter::To(
    Notification::AnglesGroupCreationFailedEventArgs&& source,
    Generated::AnglesGroupCreationFailedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

#include "Thrift/Notifier/FromAnglesGroupCreationEventArgs.h"

#include "Domain/CorvaneData/Notification/AnglesGroupCreationEventArgs.h"
#include "Thrift/Data/Clips/FromAnglesGroup.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/FromClipCommandEventArgs.h"
#include "generated/AnglesGroupCreationEventArgs_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
AnglesGroupCreationEventArgsToThriftConverter::To(Notification::AnglesGroupCreationEventArgs const& source,
                                                  Generated::AnglesGroupCreationEventArgs& destination) const noexcept
{
    static ClipCommandEventArgsToThriftConverter const parentConverter;
    static Data::Clips::AnglesGroupToThriftConverter const anglesGroupToThriftConverter;

    if (auto const result = parentConverter.To(source, destination.clipCommandEventArgs); !result.success)
        return Nested(result);
    destination.databaseRevision = source.databaseRevision;
    return anglesGroupToThriftConverter.To(source.anglesGroup, destination.anglesGroup);
}

ConversionResult
AnglesGroupCreationEventArgsToThriftConverter::To(Notification::AnglesGroupCreationEventArgs&& source,
                                                  Generated::AnglesGroupCreationEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

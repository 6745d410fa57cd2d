#include "Thrift/Notifier/FromClipCommandEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Widths.h"
#include "generated/ClipCommandEventArgs_types.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;
using RequestSource = Notification::ClipCommandEventArgs::RequestSource;

namespace
{

char const* SourceWord(RequestSource const source) noexcept
{
    switch (source)
    {
    case RequestSource::Local:
        return "Local";
    case RequestSource::Network:
        return "Network";
    default:
        return "Unknown";
    }
}

} // namespace

ConversionResult ClipCommandEventArgsToThriftConverter::To(Notification::ClipCommandEventArgs const& source,
                                                           Generated::ClipCommandEventArgs& destination) const noexcept
{
    Data::GuidToThriftConverter const fromGuid;

    TALVO_FLAGGED(destination, localMachineSerial) = Widened(source.localMachineSerial);
    TALVO_FLAGGED(destination, operationNumber) = static_cast<std::int32_t>(source.operationNumber);
    TALVO_FLAGGED(destination, userTicket) = source.userTicket;
    TALVO_FLAGGED(destination, subCommandIndex) = source.subCommandIndex;
    TALVO_FLAGGED(destination, requestSource) = SourceWord(source.requestSource);
    if (auto const result = fromGuid.To(source.commandGuid, destination.commandGuid); !result.success)
        return Nested(result);
    destination.__isset.commandGuid = true;
    return Success();
}

ConversionResult ClipCommandEventArgsToThriftConverter::To(Notification::ClipCommandEventArgs&& source,
                                                           Generated::ClipCommandEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

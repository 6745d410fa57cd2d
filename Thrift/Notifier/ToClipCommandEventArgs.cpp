#include "Thrift/Notifier/ToClipCommandEventArgs.h"

#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Widths.h"
#include "generated/ClipCommandEventArgs_types.h"

#include <cstdint>
#include <string_view>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;
using RequestSource = Notification::ClipCommandEventArgs::RequestSource;

namespace
{

/// Reads a request source. The words are case-sensitive; any other word reads as `Unknown`.
RequestSource SourceOf(std::string_view const word) noexcept
{
    if (word == "Local") return RequestSource::Local;
    if (word == "Network") return RequestSource::Network;
    return RequestSource::Unknown;
}

} // namespace

ConversionResult
ThriftToClipCommandEventArgsConverter::To(Generated::ClipCommandEventArgs const& source,
                                          Notification::ClipCommandEventArgs& destination) const noexcept
{
    Data::ThriftToGuidConverter const toGuid;
    auto const& isset = source.__isset;

    if (!isset.localMachineSerial || !isset.requestSource || !isset.operationNumber || !isset.userTicket ||
        !isset.commandGuid)
        return Failure("Missing fields for ClipCommand");

    Corvane::Data::Guid commandGuid;
    if (auto const result = Read("commandGuid", toGuid, source.commandGuid, commandGuid); !result.success)
        return Nested(result);

    destination.commandGuid = commandGuid;
    destination.requestSource = SourceOf(source.requestSource);
    destination.localMachineSerial = LowWord(source.localMachineSerial);
    destination.operationNumber = static_cast<std::uint32_t>(source.operationNumber);
    destination.userTicket = static_cast<std::uint16_t>(source.userTicket);
    destination.subCommandIndex = source.subCommandIndex; // regardless of its flag
    return Success();
}

ConversionResult
ThriftToClipCommandEventArgsConverter::To(Generated::ClipCommandEventArgs&& source,
                                          Notification::ClipCommandEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

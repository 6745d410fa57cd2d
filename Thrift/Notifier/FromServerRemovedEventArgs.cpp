#include "Thrift/Notifier/FromServerRemovedEventArgs.h"

#include "Domain/CorvaneData/Notification/ServerRemovedEventArgs.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/ServerRemovedEA_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

using namespace Detail;

ConversionResult
ServerRemovedEventArgsToThriftConverter::To(Notification::ServerRemovedEventArgs const& source,
                                            Generated::ServerRemovedEventArgs& destination) const noexcept
{
    TALVO_FLAGGED(destination, serverId) = source.serverId.Value();
    return Success();
}

ConversionResult
ServerRemovedEventArgsToThriftConverter::To(Notification::ServerRemovedEventArgs&& source,
                                            Generated::ServerRemovedEventArgs& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

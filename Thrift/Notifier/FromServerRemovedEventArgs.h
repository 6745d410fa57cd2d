#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ServerRemovedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ServerRemovedEventArgs;
} // namespace Generated

/// Writes a domain `ServerRemovedEventArgs` into the wire record `ServerRemovedEventArgs`. It can't fail.
class ServerRemovedEventArgsToThriftConverter
    : public Converter<Notification::ServerRemovedEventArgs, Generated::ServerRemovedEventArgs>
{
public:
    ConversionResult To(Notification::ServerRemovedEventArgs const& source,
                        Generated::ServerRemovedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ServerRemovedEventArgs&& source,
                        Generated::ServerRemovedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

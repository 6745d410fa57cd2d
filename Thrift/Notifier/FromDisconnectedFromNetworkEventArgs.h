#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct DisconnectedFromNetworkEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class DisconnectedFromNetworkEventArgs;
} // namespace Generated

/// Writes a domain `DisconnectedFromNetworkEventArgs` into the wire record `DisconnectedFromNetworkEventArgs`. It can't
/// fail.
class DisconnectedFromNetworkEventArgsToThriftConverter
    : public Converter<Notification::DisconnectedFromNetworkEventArgs, Generated::DisconnectedFromNetworkEventArgs>
{
public:
    ConversionResult To(Notification::DisconnectedFromNetworkEventArgs const& source,
                        Generated::DisconnectedFromNetworkEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::DisconnectedFromNetworkEventArgs&& source,
                        Generated::DisconnectedFromNetworkEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ServerAddedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ServerAddedEventArgs;
} // namespace Generated

/// Writes a domain `ServerAddedEventArgs` into the wire record `ServerAddedEventArgs`. It can't fail. The destination
/// has to be new, because ServerInfoToThriftConverter appends its addresses.
class ServerAddedEventArgsToThriftConverter
    : public Converter<Notification::ServerAddedEventArgs, Generated::ServerAddedEventArgs>
{
public:
    ConversionResult To(Notification::ServerAddedEventArgs const& source,
                        Generated::ServerAddedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ServerAddedEventArgs&& source,
                        Generated::ServerAddedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipCreationFailedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipCreationFailedEventArgs;
} // namespace Generated

/// Writes a domain `ClipCreationFailedEventArgs` into the wire record `ClipCreationFailedEventArgs`. It can't fail.
///
/// Lost on the way: `internalResult`. Its field and flag are left as they are: a converter that is given the new record
/// reads -1, one that is given what a peer read from its bytes reads 0, since all fields but optional ones are written;
/// a `result` outside its table, which travels as `Success`; what ClipToThriftConverter loses.
class ClipCreationFailedEventArgsToThriftConverter
    : public Converter<Notification::ClipCreationFailedEventArgs, Generated::ClipCreationFailedEventArgs>
{
public:
    ConversionResult To(Notification::ClipCreationFailedEventArgs const& source,
                        Generated::ClipCreationFailedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ClipCreationFailedEventArgs&& source,
                        Generated::ClipCreationFailedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

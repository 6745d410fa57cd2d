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
/// Lost: `internalResult`. Its field and flag are unchanged: converting the new record back gives -1, but converting a
/// record that was read from its bytes gives 0, since all fields except optional ones are written; a `result` outside
/// its table, which is written as `Success`; what ClipToThriftConverter loses.
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

#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipDeletionFinishedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipDeletionFinishedEventArgs;
} // namespace Generated

/// Writes a domain `ClipDeletionFinishedEventArgs` into the wire record `ClipDeletionFinishedEventArgs`. It can't fail.
///
/// Lost: the two reserved bytes, which have no wire field; what ClipToThriftConverter loses.
class ClipDeletionFinishedEventArgsToThriftConverter
    : public Converter<Notification::ClipDeletionFinishedEventArgs, Generated::ClipDeletionFinishedEventArgs>
{
public:
    ConversionResult To(Notification::ClipDeletionFinishedEventArgs const& source,
                        Generated::ClipDeletionFinishedEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ClipDeletionFinishedEventArgs&& source,
                        Generated::ClipDeletionFinishedEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

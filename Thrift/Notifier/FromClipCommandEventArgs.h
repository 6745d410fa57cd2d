#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Notification
{
struct ClipCommandEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier
{

namespace Generated
{
class ClipCommandEventArgs;
} // namespace Generated

/// Writes a domain `ClipCommandEventArgs` into the wire record `ClipCommandEventArgs`. It can't fail.
///
/// The source of the request is written as a word, "Local", "Network" or "Unknown". The database revision is a field of
/// the enclosing event.
class ClipCommandEventArgsToThriftConverter
    : public Converter<Notification::ClipCommandEventArgs, Generated::ClipCommandEventArgs>
{
public:
    ConversionResult To(Notification::ClipCommandEventArgs const& source,
                        Generated::ClipCommandEventArgs& destination) const noexcept override;

    ConversionResult To(Notification::ClipCommandEventArgs&& source,
                        Generated::ClipCommandEventArgs& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier

#pragma once

#include "Common/Serialization/ConversionResult.h"

namespace Talvo::Common::Serialization
{

/// The frame of every converter: a stateless object that copies one record between its in-process form and its wire
/// form.
///
/// There is one class a record and direction. The caller owns source and destination and constructs the destination
/// first; nothing is kept between calls, so any number of threads may share one converter. A failed conversion rolls
/// nothing back: what was written before the failure stays in the destination.
///
/// Both types may be incomplete here, so a converter's header does not drag in the records it converts.
template<typename TSource, typename TDestination>
class Converter
{
public:
    virtual ~Converter() = default;

    /// Converts `source` into `destination`.
    virtual ConversionResult To(TSource const& source, TDestination& destination) const noexcept = 0;

    /// The same conversion; the source is not moved from and stays intact.
    virtual ConversionResult To(TSource&& source, TDestination& destination) const noexcept = 0;

    /// Always the empty text, also after a failure: failures are told by the ConversionResult alone.
    [[nodiscard]] virtual char const* GetLastConversionError() const noexcept { return ""; }
};

} // namespace Talvo::Common::Serialization

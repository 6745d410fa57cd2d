#pragma once

#include "Common/Serialization/ConversionResult.h"

namespace Talvo::Common::Serialization
{

/// The interface of every converter: a stateless object that converts one record between its in-process form and its
/// wire form.
///
/// There is one class per record and direction. The caller owns source and destination and constructs the destination
/// first. A converter keeps nothing between calls, so any number of threads may share it. A failed conversion is not
/// rolled back: what was written before the failure stays in the destination.
///
/// Both types may be incomplete here, so a converter's header does not include the records that it converts.
template<typename TSource, typename TDestination>
class Converter
{
public:
    virtual ~Converter() = default;

    /// Converts `source` into `destination`.
    virtual ConversionResult To(TSource const& source, TDestination& destination) const noexcept = 0;

    /// Converts `source` into `destination`. The source is not moved from and is unchanged.
    virtual ConversionResult To(TSource&& source, TDestination& destination) const noexcept = 0;

    /// Returns an empty text, even after a failure: only the ConversionResult reports failures.
    [[nodiscard]] virtual char const* GetLastConversionError() const noexcept { return ""; }
};

} // namespace Talvo::Common::Serialization

#pragma once

#include "Common/Serialization/ConversionResult.h"
#include "Thrift/BadValue.h"

#include <type_traits>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift
{

/// Converts a record from an untrusted peer. It does what `converter.To(source, destination)` does, except that a value
/// that ends the process there is a failure here: its message is the "path: reason" of the BadValue.
///
/// It works with every converter to the domain, and takes as long as `To`. Pass the converter as its concrete class:
/// through the base class `Converter<...>` an invalid value would still end the process, so that does not compile. As
/// after every failure, the destination holds what was converted before it; the list element with the invalid value may
/// be present, partly converted. For a class derived from a converter, TryTo() calls the inherited `ToOrThrow`, if
/// there is one. A failed allocation throws std::bad_alloc; in a converter in which no value ends the process, it ends
/// the process.
///
///     Domain::Clip clip;
///     auto const result = TryTo(ThriftToClipConverter(), record, clip);
///     if (!result.success) std::cerr << result.message << '\n';
template<typename TConverter, typename TSource, typename TDestination>
Common::Serialization::ConversionResult TryTo(TConverter const& converter, TSource const& source,
                                              TDestination& destination)
{
    static_assert(!std::is_abstract_v<TConverter>, "Name the converter's own class");
    if constexpr (requires { converter.ToOrThrow(source, destination); })
    {
        try
        {
            return converter.ToOrThrow(source, destination);
        }
        catch (BadValue const& badValue)
        {
            return {false, badValue.what()};
        }
    }
    else
        return converter.To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift

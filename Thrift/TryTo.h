#pragma once

#include "Common/Serialization/ConversionResult.h"
#include "Thrift/BadValue.h"

#include <type_traits>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift
{

/// Converts a record from a peer that is not trusted. It is `converter.To(source, destination)`, except that a value that
/// ends the process there is a failure here: its message is "path: reason" of the BadValue.
///
/// Works with every converter to the domain, and costs what `To` costs. The converter is given as its own class: through
/// the frame `Converter<...>` a bad value would still end the process, so that does not compile. As after every failure,
/// the destination holds what was converted before it; the element of a list that holds the bad value may be there, half
/// converted. A class derived from a converter converts with the `ToOrThrow` that it inherits, where there is one. An
/// allocation that fails throws std::bad_alloc or, in a converter in which no value ends the process, ends the process.
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

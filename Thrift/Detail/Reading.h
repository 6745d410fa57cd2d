#pragma once

#include "Common/Serialization/ConversionResult.h"
#include "Thrift/BadValue.h"

#include <cstddef>
#include <exception>
#include <stdexcept>
#include <string>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// One step on the path from a record to a value in it.
class PathStep
{
public:
    /// A field: `clip`.
    constexpr PathStep(char const* const field) noexcept
        : text_(field)
    {
    }

    /// An element of a list, or a field of that element: `clips[3]`, `clips[3].clip`.
    constexpr PathStep(char const* const list, std::size_t const index, char const* const field = nullptr) noexcept
        : text_(list)
        , isElement_(true)
        , index_(index)
        , field_(field)
    {
    }

    /// An entry of a map: `players["\x00A..."]`.
    constexpr PathStep(char const* const map, std::string const& key) noexcept
        : text_(map)
        , key_(&key)
    {
    }

    std::string Text() const
    {
        std::string text = text_;
        if (isElement_) text.append("[").append(std::to_string(index_)).append("]");
        if (field_ != nullptr) text.append(".").append(field_);
        if (key_ != nullptr) text.append("[\"").append(Printable(*key_)).append("\"]");
        return text;
    }

private:
    static std::string Printable(std::string const& bytes)
    {
        constexpr auto digits = "0123456789abcdef";
        std::string text;
        for (auto const byte : bytes)
        {
            auto const number = static_cast<unsigned char>(byte);
            if (number >= 0x20 && number < 0x7f && byte != '"' && byte != '\\')
                text += byte;
            else
                text.append("\\x").append(1, digits[number >> 4]).append(1, digits[number & 15]);
        }
        return text;
    }

    char const* text_;
    bool isElement_ = false;
    std::size_t index_ = 0;
    char const* field_ = nullptr;
    std::string const* key_ = nullptr;
};

/// A separate function, so that conversions of valid values do not pay for building the path.
[[noreturn, gnu::cold, gnu::noinline]] inline void ThrowWithin(PathStep const& step, BadValue const& badValue)
{
    throw BadValue(step.Text().append(".").append(badValue.Path()), badValue.Reason());
}

/// Converts a nested record to the domain. Converters to the domain call each other only through this function, except
/// those of identifiers and load boundaries, in which no value ends the process. A BadValue is rethrown with the step
/// to the nested record added to its path.
template<typename TConverter, typename TSource, typename TDestination>
Common::Serialization::ConversionResult Read(PathStep const& step, TConverter const& converter, TSource const& source,
                                             TDestination& destination)
{
    if constexpr (requires { converter.ToOrThrow(source, destination); })
    {
        try
        {
            return converter.ToOrThrow(source, destination);
        }
        catch (BadValue const& badValue)
        {
            ThrowWithin(step, badValue);
        }
    }
    else
        return converter.To(source, destination);
}

/// Returns what `make` returns. Converts an exception that `make` throws for an invalid value of `field` to a BadValue.
template<typename TMake>
auto OrBadValue(char const* const field, TMake const& make)
{
    try
    {
        return make();
    }
    catch (std::logic_error const& error)
    {
        throw BadValue(field, error.what());
    }
}

/// The body of `To` in a converter that has `ToOrThrow`. The exception is caught here so that the terminate handler
/// finds it, regardless of what the compiler has inlined.
template<typename TConverter, typename TSource, typename TDestination>
Common::Serialization::ConversionResult ToOrTerminate(TConverter const& converter, TSource const& source,
                                                      TDestination& destination) noexcept
{
    try
    {
        return converter.ToOrThrow(source, destination);
    }
    catch (...)
    {
        std::terminate();
    }
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail

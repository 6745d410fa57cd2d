#pragma once

#include "Common/Serialization/ConversionResult.h"

#include <string>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// Costs no allocation.
inline Common::Serialization::ConversionResult Success() noexcept
{
    return {true, {}};
}

inline Common::Serialization::ConversionResult Failure(std::string message) noexcept
{
    return {false, std::move(message)};
}

/// Passes a nested failure up: the same text with no prefix, read as a NUL-terminated one.
inline Common::Serialization::ConversionResult Nested(Common::Serialization::ConversionResult const& failure)
{
    return Failure(failure.message.c_str());
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail

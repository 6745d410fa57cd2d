#pragma once

#include "Common/Serialization/ConversionResult.h"

#include <string>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// A successful result, made without allocation.
inline Common::Serialization::ConversionResult Success() noexcept
{
    return {true, {}};
}

inline Common::Serialization::ConversionResult Failure(std::string message) noexcept
{
    return {false, std::move(message)};
}

/// Returns a nested failure to the caller: the same text without a prefix, up to its first NUL.
inline Common::Serialization::ConversionResult Nested(Common::Serialization::ConversionResult const& failure)
{
    return Failure(failure.message.c_str());
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail

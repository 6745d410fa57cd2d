#pragma once

#include <string>

namespace Talvo::Common::Serialization
{

/// What a conversion says of itself. Callers decide on `success` alone.
///
/// A conversion never throws: a failure is this value, and an exception that reaches the end of a conversion ends the
/// process.
struct [[nodiscard]] ConversionResult
{
    bool success;        ///< True when the whole record was converted.
    std::string message; ///< Why it failed, in English; each converter's header has its texts. Empty on success.
};

} // namespace Talvo::Common::Serialization

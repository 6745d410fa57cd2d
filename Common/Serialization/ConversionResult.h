#pragma once

#include <string>

namespace Talvo::Common::Serialization
{

/// The result of a conversion. Callers check only `success`; `message` is for people.
///
/// A conversion never throws: a failure is this value, and an exception that would leave a conversion ends the process.
struct [[nodiscard]] ConversionResult
{
    bool success;        ///< True if the whole record was converted.
    std::string message; ///< Why it failed, in English; the converter's header lists the texts. Empty on success.
};

} // namespace Talvo::Common::Serialization

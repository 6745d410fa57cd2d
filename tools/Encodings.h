#pragma once

#include <string>
#include <string_view>

namespace Talvo::Tools
{

/// How a file writes its bytes.
enum class Encoding
{
    Bytes, ///< As they are.
    Hex,   ///< Two digits a byte.
    Base64
};

/// The encoding named `bytes`, `hex` or `base64`. Throws Failure for any other name.
Encoding ParseEncoding(std::string_view name);

/// The bytes that a text stands for, in which blanks and line ends are ignored. Throws Failure where it is no such text.
std::string DecodeText(std::string text, Encoding encoding);

/// What bytes are, if they are printable ASCII: such as "hex text"; else empty.
std::string_view TextKind(std::string_view bytes);

} // namespace Talvo::Tools

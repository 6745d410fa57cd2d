#pragma once

#include <array>
#include <cstddef>

namespace Talvo::Corvane::Data::Clips
{

/// Identifier text of a clip: up to eight single-byte characters. Empty when default-constructed.
class UmId
{
public:
    static constexpr std::size_t MaxLength = 8;

    /// Stores at most the first eight characters; the rest is cut.
    /// @param text NUL-terminated, never null
    void SetUmId(char const* text) noexcept;

    /// The NUL-terminated text, valid for the lifetime of the object.
    char const* GetUmId() const noexcept { return text_.data(); }

    bool operator==(UmId const&) const = default;

private:
    std::array<char, MaxLength + 1> text_{}; // zeros after the end of the text
};

} // namespace Talvo::Corvane::Data::Clips

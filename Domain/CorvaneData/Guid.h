#pragma once

#include <array>
#include <compare>

namespace Talvo::Corvane::Data
{

/// Identifier of sixteen raw bytes, without a text form.
///
/// The identifiers of clips, angles groups, sequences and channels derive from it and add no data, so each may be passed
/// as a Guid and written through a Guid&.
class Guid
{
public:
    static constexpr unsigned int Size = 16;

    /// The identifier of sixteen zero bytes.
    constexpr Guid() noexcept = default;

    /// Takes at most the first sixteen bytes; missing bytes are zero. `bytes` has to be readable for `size` bytes, and
    /// is ignored if `size` is 0.
    Guid(unsigned char const* bytes, unsigned int size) noexcept;

    /// The identifier of sixteen zero bytes.
    static Guid const& Empty() noexcept;

    /// A new random identifier: a version 4 UUID of RFC 4122, its bytes in network order. Thread-safe. Throws
    /// boost::uuids::entropy_error if the system provides no random bytes.
    static Guid Generate();

    /// The sixteen bytes, valid for the lifetime of the object.
    unsigned char const* Bytes() const noexcept { return bytes_.data(); }

    bool operator==(Guid const&) const = default;
    std::strong_ordering operator<=>(Guid const&) const = default; ///< compares the bytes as unsigned numbers

private:
    std::array<unsigned char, Size> bytes_{};
};

} // namespace Talvo::Corvane::Data

#pragma once

#include <array>
#include <compare>

namespace Talvo::Corvane::Data
{

/// Identifier of sixteen raw bytes, which have no text form here.
///
/// The identifiers of clips, angles groups, sequences and channels derive from it and add no data, so each may be passed
/// as a Guid and written through a Guid&.
class Guid
{
public:
    static constexpr unsigned int Size = 16;

    /// Sixteen zero bytes.
    constexpr Guid() noexcept = default;

    /// Takes the first sixteen bytes at most; what is missing is zero. `bytes` is readable for `size` bytes, and not
    /// looked at if `size` is 0.
    Guid(unsigned char const* bytes, unsigned int size) noexcept;

    /// Sixteen zero bytes.
    static Guid const& Empty() noexcept;

    /// A new random identifier: a version 4 UUID of RFC 4122, its bytes in network order. Any number of threads may call.
    /// Throws boost::uuids::entropy_error if the system gives no random bytes.
    static Guid Generate();

    /// The sixteen bytes, valid as long as the object.
    unsigned char const* Bytes() const noexcept { return bytes_.data(); }

    bool operator==(Guid const&) const = default;
    std::strong_ordering operator<=>(Guid const&) const = default; ///< of the bytes, as unsigned numbers

private:
    std::array<unsigned char, Size> bytes_{};
};

} // namespace Talvo::Corvane::Data

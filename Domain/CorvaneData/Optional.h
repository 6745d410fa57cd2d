#pragma once

#include <memory>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace Talvo::Corvane::Data
{

/// A value that may be missing ("Null"), stored in place without allocation. Null when default-constructed.
template<typename T>
class Optional
{
public:
    /// Null.
    Optional() noexcept {}
    /// Constructs an object that holds a copy of `value`.
    Optional(T const& value) { Hold(value); }
    /// Constructs an object that holds `value`, moved.
    Optional(T&& value) { Hold(std::move(value)); }

    /// Copies the value of `other`, or its absence.
    Optional(Optional const& other)
    {
        if (other.hasValue_) Hold(other.value_);
    }

    /// Moves the value of `other`, which then still holds a moved-from value.
    Optional(Optional&& other) noexcept(std::is_nothrow_move_constructible_v<T>)
    {
        if (other.hasValue_) Hold(std::move(other.value_));
    }

    /// Copies or moves, depending on the argument.
    Optional& operator=(Optional other) noexcept(std::is_nothrow_move_constructible_v<T>)
    {
        Delete();
        if (other.hasValue_) Hold(std::move(other.value_));
        return *this;
    }

    ~Optional() { Delete(); }

    /// Whether it holds a value.
    bool HasValue() const noexcept { return hasValue_; }

    /// The held value, valid until the object is changed or destroyed.
    /// Throws std::runtime_error "Can't retrieve the value of a Null Optional value" if it is Null.
    T const& Value() const
    {
        if (!hasValue_) throw std::runtime_error("Can't retrieve the value of a Null Optional value");
        return value_;
    }

    /// Destroys the held value, if there is one. The object is then Null.
    void Delete() noexcept
    {
        if (!hasValue_) return;
        hasValue_ = false;
        std::destroy_at(&value_);
    }

    /// Whether both are Null, or both hold equal values.
    bool operator==(Optional const& other) const
    {
        return hasValue_ == other.hasValue_ && (!hasValue_ || value_ == other.value_);
    }

private:
    template<typename U>
    void Hold(U&& value)
    {
        std::construct_at(&value_, std::forward<U>(value));
        hasValue_ = true;
    }

    // The storage directly follows the flag. Callers depend on this layout.
    bool hasValue_ = false;
    union
    {
        T value_;
    };
};

} // namespace Talvo::Corvane::Data

#pragma once

#include <memory>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace Talvo::Corvane::Data
{

/// A value that may be missing ("Null"), held in place with no allocation. Null when default-built.
template<typename T>
class Optional
{
public:
    /// Null.
    Optional() noexcept {}
    /// Holds a copy of the value.
    Optional(T const& value) { Hold(value); }
    /// Holds the value, moved.
    Optional(T&& value) { Hold(std::move(value)); }

    /// Holds a copy of what the other one holds.
    Optional(Optional const& other)
    {
        if (other.hasValue_) Hold(other.value_);
    }

    /// The source keeps its flag; its value is moved from.
    Optional(Optional&& other) noexcept(std::is_nothrow_move_constructible_v<T>)
    {
        if (other.hasValue_) Hold(std::move(other.value_));
    }

    /// Copies or moves, by what it is given.
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

    /// Destroys the held value, if any; Null afterwards.
    void Delete() noexcept
    {
        if (!hasValue_) return;
        hasValue_ = false;
        std::destroy_at(&value_);
    }

    /// Both Null, or both with equal values.
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

    // The flag comes first and the storage follows at once: callers share this layout.
    bool hasValue_ = false;
    union
    {
        T value_;
    };
};

} // namespace Talvo::Corvane::Data

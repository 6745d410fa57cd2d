#pragma once

#include <cstddef>
#include <list>
#include <memory>
#include <utility>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// A list that is read once, from front to back. Copies share the items, which never change, and start at the position
/// of the original.
template<typename T>
class ItemCursor
{
public:
    /// Constructs a cursor before the first item.
    explicit ItemCursor(std::list<T>&& items)
        : items_(std::make_shared<std::list<T> const>(std::move(items)))
        , next_(items_->begin())
        , remainingCount_(items_->size())
    {
    }

    /// There is no move constructor: moving copies, so a moved-from cursor can still be read.
    ItemCursor(ItemCursor const&) = default;
    ItemCursor& operator=(ItemCursor const&) = default;
    ~ItemCursor() = default;

    /// Moves to the next item and returns whether there is one.
    bool MoveNext() const noexcept
    {
        if (remainingCount_ == 0) return false;
        current_ = next_++;
        --remainingCount_;
        return true;
    }

    /// The item that the last MoveNext() moved to.
    T const& Current() const noexcept { return *current_; }

    /// The number of items that MoveNext() has not yet reached.
    std::size_t RemainingCount() const noexcept { return remainingCount_; }

private:
    std::shared_ptr<std::list<T> const> items_;
    mutable typename std::list<T>::const_iterator current_;
    mutable typename std::list<T>::const_iterator next_;
    mutable std::size_t remainingCount_;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

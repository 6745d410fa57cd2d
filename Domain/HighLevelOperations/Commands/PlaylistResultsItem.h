#pragma once

#include "Domain/CorvaneData/OperationStatus.h"
#include "Domain/CorvaneData/Sequences/Playlist.h"

#include <memory>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The result of a command on one playlist. It can be moved but not copied.
class PlaylistResultsItem
{
public:
    /// The status of the item.
    Corvane::Data::OperationStatus const& OperationStatus() const noexcept { return operationStatus_; }

    /// Sets the status. A status other than `Succeeded` destroys the held playlist.
    void OperationStatus(Corvane::Data::OperationStatus const& status) noexcept;

private:
    Corvane::Data::OperationStatus operationStatus_;

public:
    std::unique_ptr<Corvane::Data::Sequences::Playlist> playlist; ///< may be null
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

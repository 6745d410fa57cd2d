#pragma once

#include "Domain/CorvaneData/OperationStatus.h"
#include "Domain/CorvaneData/Sequences/Playlist.h"

#include <memory>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// What became of one playlist. Can be moved, not copied.
class PlaylistResultsItem
{
public:
    /// What became of it.
    Corvane::Data::OperationStatus const& OperationStatus() const noexcept { return operationStatus_; }

    /// A status other than `Succeeded` destroys the held playlist.
    void OperationStatus(Corvane::Data::OperationStatus const& status) noexcept;

private:
    Corvane::Data::OperationStatus operationStatus_;

public:
    std::unique_ptr<Corvane::Data::Sequences::Playlist> playlist; ///< may be null
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/OperationStatus.h"

#include <memory>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// What became of one clip. Can be moved, not copied.
class ClipResultsItem
{
public:
    /// What became of it.
    Corvane::Data::OperationStatus const& OperationStatus() const noexcept { return operationStatus_; }

    /// A status other than `Succeeded` destroys the held clip.
    void OperationStatus(Corvane::Data::OperationStatus const& status) noexcept;

    /// The clip of an item that succeeded, else Clip::Empty().
    Corvane::Data::Clips::Clip const& Clip() const noexcept;

private:
    Corvane::Data::OperationStatus operationStatus_;

public:
    std::unique_ptr<Corvane::Data::Clips::Clip> clip; ///< may be null
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

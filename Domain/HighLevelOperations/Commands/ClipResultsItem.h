#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/OperationStatus.h"

#include <memory>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The result of a command on one clip. It can be moved but not copied.
class ClipResultsItem
{
public:
    /// The status of the item.
    Corvane::Data::OperationStatus const& OperationStatus() const noexcept { return operationStatus_; }

    /// Sets the status. A status other than `Succeeded` destroys the held clip.
    void OperationStatus(Corvane::Data::OperationStatus const& status) noexcept;

    /// The clip of an item that succeeded, otherwise Clip::Empty().
    Corvane::Data::Clips::Clip const& Clip() const noexcept;

private:
    Corvane::Data::OperationStatus operationStatus_;

public:
    std::unique_ptr<Corvane::Data::Clips::Clip> clip; ///< may be null
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

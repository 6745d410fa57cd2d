#include "Domain/HighLevelOperations/Commands/ClipResultsItem.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

void ClipResultsItem::OperationStatus(Corvane::Data::OperationStatus const& status) noexcept
{
    operationStatus_ = status;
    if (status.status != Corvane::Data::OperationStatus::Status::Succeeded) clip.reset();
}

Corvane::Data::Clips::Clip const& ClipResultsItem::Clip() const noexcept
{
    bool const hasSucceeded = operationStatus_.status == Corvane::Data::OperationStatus::Status::Succeeded;
    return clip != nullptr && hasSucceeded ? *clip : Corvane::Data::Clips::Clip::Empty();
}

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

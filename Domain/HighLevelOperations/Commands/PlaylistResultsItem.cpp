#include "Domain/HighLevelOperations/Commands/PlaylistResultsItem.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

void PlaylistResultsItem::OperationStatus(Corvane::Data::OperationStatus const& status) noexcept
{
    operationStatus_ = status;
    if (status.status != Corvane::Data::OperationStatus::Status::Succeeded) playlist.reset();
}

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

#include "Domain/HighLevelOperations/Commands/CommandReply.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

CommandReply::~CommandReply() = default;

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

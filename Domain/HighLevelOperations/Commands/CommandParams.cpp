#include "Domain/HighLevelOperations/Commands/CommandParams.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

CommandParams::CommandParams()
    : commandGuid(Corvane::Data::Guid::Generate())
{
}

CommandParams::~CommandParams() = default;

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

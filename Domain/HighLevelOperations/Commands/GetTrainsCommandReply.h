#pragma once

#include "Domain/CorvaneData/Clips/Train.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"

#include <cstdint>
#include <vector>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// All trains. It can be moved but not copied.
struct GetTrainsCommandReply : CommandReply
{
    GetTrainsCommandReply() = default;
    // Declared because a vector claims to be copyable even if its elements are not.
    GetTrainsCommandReply(GetTrainsCommandReply&&) = default;
    GetTrainsCommandReply& operator=(GetTrainsCommandReply&&) = default;

    ReplyType GetType() const noexcept override { return ReplyType::GetTrains; }

    std::int64_t dbRevision = 0; ///< the revision of the server's database
    std::vector<Corvane::Data::Clips::Train> trains;
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

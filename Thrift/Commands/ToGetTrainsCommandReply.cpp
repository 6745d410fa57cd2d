#include "Thrift/Commands/ToGetTrainsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetTrainsCommandReply.h"
#include "Thrift/Data/Clips/ToTrain.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetTrainsCommandReply_types.h"

#include <cstddef>
#include <tuple>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using Corvane::Data::Clips::RecordingRange;
using TimePoints::TimeCode;

ConversionResult ThriftToGetTrainsCommandReplyConverter::ToOrThrow(
    Generated::GetTrainsCommandReply const& source,
    HighLevelOperations::Commands::GetTrainsCommandReply& destination) const
{
    Data::Clips::ThriftToTrainConverter const toTrain;
    auto const& isset = source.__isset;

    destination.commandGuid = isset.guid ? ReadGuidAs<Corvane::Data::Guid>(source.guid) : Corvane::Data::Guid::Empty();
    destination.dbRevision = source.dbRevision; // regardless of its flag
    destination.trains.clear();
    if (isset.trains)
    {
        destination.trains.reserve(source.trains.size());
        for (std::size_t i = 0; i < source.trains.size(); ++i)
        {
            destination.trains.emplace_back(nullptr, std::vector<RecordingRange>(), false, false, TimeCode());
            std::ignore = Read({"trains", i}, toTrain, source.trains[i], destination.trains.back());
        }
    }
    return isset.guid || isset.trains ? Success() : Failure("GetTrainsCommandReply is empty");
}

ConversionResult ThriftToGetTrainsCommandReplyConverter::To(
    Generated::GetTrainsCommandReply const& source,
    HighLevelOperations::Commands::GetTrainsCommandReply& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToGetTrainsCommandReplyConverter::To(
    Generated::GetTrainsCommandReply&& source,
    HighLevelOperations::Commands::GetTrainsCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

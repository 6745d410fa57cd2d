#include "Thrift/Commands/ToGetTrainsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetTrainsCommandReply.h"
#include "Thrift/Data/Clips/ToTrain.h"
#include "Thrift/Detail/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetTrainsCommandReply_types.h"

#include <tuple>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using Corvane::Data::Clips::RecordingRange;
using TimePoints::TimeCode;

ConversionResult ThriftToGetTrainsCommandReplyConverter::To(
    Generated::GetTrainsCommandReply const& source,
    HighLevelOperations::Commands::GetTrainsCommandReply& destination) const noexcept
{
    Data::Clips::ThriftToTrainConverter const toTrain;
    auto const& isset = source.__isset;

    destination.commandGuid = isset.guid ? ReadGuidAs<Corvane::Data::Guid>(source.guid) : Corvane::Data::Guid::Empty();
    destination.dbRevision = source.dbRevision; // whether its flag is set or not
    destination.trains.clear();
    if (isset.trains)
    {
        destination.trains.reserve(source.trains.size());
        for (auto const& wireTrain : source.trains)
        {
            destination.trains.emplace_back(nullptr, std::vector<RecordingRange>(), false, false, TimeCode());
            std::ignore = toTrain.To(wireTrain, destination.trains.back());
        }
    }
    return isset.guid || isset.trains ? Success() : Failure("GetTrainsCommandReply is empty");
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

#include "Thrift/Commands/FromGetTrainsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetTrainsCommandReply.h"
#include "Thrift/Data/Clips/FromTrain.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetTrainsCommandReply_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult
GetTrainsCommandReplyToThriftConverter::To(HighLevelOperations::Commands::GetTrainsCommandReply const& source,
                                           Generated::GetTrainsCommandReply& destination) const noexcept
{
    Data::Clips::TrainToThriftConverter const fromTrain;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, guid));
    TALVO_FLAGGED(destination, dbRevision) = source.dbRevision;
    AppendAll("trains", fromTrain, source.trains, destination.trains);
    if (!source.trains.empty()) destination.__isset.trains = true;
    return Success();
}

ConversionResult
GetTrainsCommandReplyToThriftConverter::To(HighLevelOperations::Commands::GetTrainsCommandReply&& source,
                                           Generated::GetTrainsCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

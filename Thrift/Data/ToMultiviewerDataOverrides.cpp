#include "Thrift/Data/ToMultiviewerDataOverrides.h"

#include "Domain/CorvaneData/Multiviewer/MultiviewerDataOverrides.h"
#include "Thrift/Data/ToPlayerDataOverrides.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/MultiviewerDataOverrides_types.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
{

using namespace Detail;

ConversionResult ToMultiviewerDataOverrides::To(Corvane::Data::Generated::MultiviewerDataOverrides const& source,
                                                Multiviewer::MultiviewerDataOverrides& destination) const noexcept
{
    ToPlayerDataOverrides const toPlayer;

    // The destination determines the number of players.
    if (source.playersData.size() != destination.playerCount) return Failure("Unexpected playerData count");
    for (std::uint32_t i = 0; i < destination.playerCount; ++i)
    {
        if (auto const result = Read({"playersData", i}, toPlayer, source.playersData[i], destination[i]);
            !result.success)
            return Nested(result);
    }
    return Success();
}

ConversionResult ToMultiviewerDataOverrides::To(Corvane::Data::Generated::MultiviewerDataOverrides&& source,
                                                Multiviewer::MultiviewerDataOverrides& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data

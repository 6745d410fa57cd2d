#include "Thrift/Data/FromMultiviewerDataOverrides.h"

#include "Domain/CorvaneData/Multiviewer/MultiviewerDataOverrides.h"
#include "Thrift/Data/FromPlayerDataOverrides.h"
#include "Thrift/Detail/Results.h"
#include "generated/MultiviewerDataOverrides_types.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
{

using namespace Detail;

ConversionResult
FromMultiviewerDataOverrides::To(Multiviewer::MultiviewerDataOverrides const& source,
                                 Corvane::Data::Generated::MultiviewerDataOverrides& destination) const noexcept
{
    FromPlayerDataOverrides const fromPlayer;

    destination.playersData.clear();
    destination.playersData.reserve(source.playerCount);
    for (std::uint32_t i = 0; i < source.playerCount; ++i)
    {
        if (auto const result = fromPlayer.To(source[i], destination.playersData.emplace_back()); !result.success)
        {
            destination.playersData.pop_back();
            return Nested(result);
        }
    }
    return Success();
}

ConversionResult
FromMultiviewerDataOverrides::To(Multiviewer::MultiviewerDataOverrides&& source,
                                 Corvane::Data::Generated::MultiviewerDataOverrides& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data

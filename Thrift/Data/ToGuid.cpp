#include "Thrift/Data/ToGuid.h"

#include "Domain/CorvaneData/Guid.h"
#include "Thrift/Detail/Results.h"
#include "generated/Guid_types.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
{

using namespace Detail;
using Corvane::Data::Guid;

ConversionResult ThriftToGuidConverter::To(Corvane::Data::Generated::Guid const& source,
                                           Guid& destination) const noexcept
{
    if (source.__isset.value)
    {
        // The constructor handles every length; only one that does not fit its parameter type is limited here.
        constexpr std::size_t most = std::numeric_limits<unsigned int>::max();
        auto const size = static_cast<unsigned int>(std::min(source.value.size(), most));
        destination = Guid(reinterpret_cast<unsigned char const*>(source.value.data()), size);
    }
    else
        destination = Guid::Empty();
    return Success();
}

ConversionResult ThriftToGuidConverter::To(Corvane::Data::Generated::Guid&& source, Guid& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data

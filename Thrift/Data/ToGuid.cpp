#include "Thrift/Data/ToGuid.h"

#include "Domain/CorvaneData/Guid.h"
#include "Thrift/Detail/Results.h"
#include "generated/Guid_types.h"

#include <algorithm>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
{

using namespace Detail;
using Corvane::Data::Guid;

ConversionResult ThriftToGuidConverter::To(Corvane::Data::Generated::Guid const& source,
                                           Guid& destination) const noexcept
{
    if (source.__isset.value)
    {
        // Cut before it is narrowed, so that no length of a string wraps on its way into the constructor.
        auto const size = static_cast<unsigned int>(std::min<std::size_t>(source.value.size(), Guid::Size));
        destination = Guid(reinterpret_cast<unsigned char const*>(source.value.data()), size);
    }
    else
        destination = Guid::Empty();
    return Success();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data

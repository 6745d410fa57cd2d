#include "Thrift/Data/FromGuid.h"

#include "Domain/CorvaneData/Guid.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Strings.h"
#include "generated/Guid_types.h"

namespace Talvo::Corvane::Data::Generated
{

// Orders the keys of the wire's sets and maps: by unsigned bytes, then by length, regardless of the flags.
bool Guid::operator<(Guid const& other) const
{
    return value < other.value;
}

} // namespace Talvo::Corvane::Data::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
{

using namespace Detail;

ConversionResult GuidToThriftConverter::To(Corvane::Data::Guid const& source,
                                           Corvane::Data::Generated::Guid& destination) const noexcept
{
    Assign<Corvane::Data::Guid::Size>(destination.value, reinterpret_cast<char const*>(source.Bytes()));
    destination.__isset.value = true;
    return Success();
}

ConversionResult GuidToThriftConverter::To(Corvane::Data::Guid&& source,
                                           Corvane::Data::Generated::Guid& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data

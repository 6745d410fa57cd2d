#pragma once

#include "Domain/CorvaneData/Guid.h"
#include "generated/Guid_types.h"

#include <string>
#include <utility>

namespace Talvo::Tests
{

/// Returns an identifier of sixteen equal bytes.
template<typename TGuid = Corvane::Data::Guid>
TGuid Id(char const fill)
{
    TGuid guid;
    std::string const bytes(Corvane::Data::Guid::Size, fill);
    static_cast<Corvane::Data::Guid&>(guid) =
        Corvane::Data::Guid(reinterpret_cast<unsigned char const*>(bytes.data()), Corvane::Data::Guid::Size);
    return guid;
}

inline Corvane::Data::Generated::Guid WireId(std::string value)
{
    Corvane::Data::Generated::Guid guid;
    guid.value = std::move(value);
    guid.__isset.value = true;
    return guid;
}

} // namespace Talvo::Tests

#pragma once

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/CorvaneData/Multiviewer/MultiviewerDataOverrides.h"
#include "Domain/CorvaneData/Sequences/Tag.h"
#include "Domain/CorvaneData/Servers/ServerId.h"

#include "generated/MultiviewerDataOverrides_types.h"

#include <cstdint>
#include <type_traits>

namespace Talvo::Records
{

/// Stands for any argument of a constructor: 0, no, or nothing in it.
struct AnyNew
{
    template<typename T>
    requires std::is_default_constructible_v<T>
    operator T() const { return T(); }

    operator Corvane::Data::Clips::Groups::AnglesGroup() const
    {
        return Corvane::Data::Clips::Groups::AnglesGroup(Corvane::Data::Clips::Groups::Guid());
    }

    operator Corvane::Data::Servers::ServerId() const { return Corvane::Data::Servers::ServerId::None(); }
};

/// A newly built domain object, the destination for `wire`: built of as many empty arguments as it takes.
template<typename TDomain, typename... TArguments>
TDomain NewDomain(auto const& wire)
{
    if constexpr (std::is_same_v<TDomain, Corvane::Data::Sequences::Tag>)
        return TDomain(TDomain::CommandType::Custom);
    else if constexpr (std::is_same_v<TDomain, Corvane::Multiviewer::MultiviewerDataOverrides>)
        return TDomain(static_cast<std::uint32_t>(wire.playersData.size())); // which conversion can't change
    else if constexpr (std::is_constructible_v<TDomain, TArguments...>)
        return TDomain(TArguments()...);
    else
        return NewDomain<TDomain, TArguments..., AnyNew>(wire);
}

} // namespace Talvo::Records

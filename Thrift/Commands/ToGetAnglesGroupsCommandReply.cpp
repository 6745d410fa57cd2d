#include "Thrift/Commands/ToGetAnglesGroupsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetAnglesGroupsCommandReply.h"
#include "Thrift/Data/Clips/ToAnglesGroup.h"
#include "Thrift/Detail/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetAnglesGroupsCommandReply_types.h"

#include <list>
#include <tuple>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToGetAnglesGroupsCommandReplyConverter::To(
    Generated::GetAnglesGroupsCommandReply const& source,
    HighLevelOperations::Commands::GetAnglesGroupsCommandReply& destination) const noexcept
{
    Data::Clips::ThriftToAnglesGroupConverter const toGroup;
    auto const& isset = source.__isset;

    auto const guid = isset.guid ? ReadGuidAs<Corvane::Data::Guid>(source.guid) : Corvane::Data::Guid::Empty();
    std::list<Corvane::Data::Clips::Groups::AnglesGroup> groups;
    if (isset.groups)
    {
        for (auto const& wireGroup : source.groups)
            std::ignore = toGroup.To(wireGroup, groups.emplace_back(Corvane::Data::Clips::Groups::Guid()));
    }
    // A revision alone does not count, yet the destination takes it.
    destination = {guid, isset.revision ? source.revision : 0, std::move(groups)};
    return isset.guid || isset.groups ? Success() : Failure("GetAnglesGroupsCommandReply is empty");
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

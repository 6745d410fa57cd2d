#include "Thrift/Commands/ToGetAnglesGroupsCommandReply.h"

#include "Domain/HighLevelOperations/Commands/GetAnglesGroupsCommandReply.h"
#include "Thrift/Data/Clips/ToAnglesGroup.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetAnglesGroupsCommandReply_types.h"

#include <cstddef>
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
        for (std::size_t i = 0; i < source.groups.size(); ++i)
            std::ignore = Read({"groups", i}, toGroup, source.groups[i],
                               groups.emplace_back(Corvane::Data::Clips::Groups::Guid()));
    }
    // A revision alone does not count, but the destination takes it.
    destination = {guid, isset.revision ? source.revision : 0, std::move(groups)};
    return isset.guid || isset.groups ? Success() : Failure("GetAnglesGroupsCommandReply is empty");
}

ConversionResult ThriftToGetAnglesGroupsCommandReplyConverter::To(
    Generated::GetAnglesGroupsCommandReply&& source,
    HighLevelOperations::Commands::GetAnglesGroupsCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands

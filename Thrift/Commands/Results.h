#pragma once

// Internal, never installed.

#include "Domain/CorvaneData/OperationStatus.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/ToOperationStatus.h"
#include "Thrift/Detail/Reading.h"

#include <cstddef>
#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

// Reads the results of commands on clips and on playlists, which have the same form.

inline constexpr Corvane::Data::OperationStatus DefaultFailure{Corvane::Data::OperationStatus::Status::Failed,
                                                               Corvane::Data::OperationResult::DefaultError};

/// Replaces a reply with the record. An item that fails keeps its initial state.
template<typename TItemConverter, typename TWireReply, typename TReply>
void ReadResults(TItemConverter const& toItem, TWireReply const& source, TReply& destination)
{
    destination = {ReadGuidAs<Corvane::Data::Guid>(source.guid), source.results.size()};
    for (std::size_t i = 0; i < source.results.size(); ++i)
    {
        auto& item = destination.results[i];
        item.OperationStatus(DefaultFailure);
        std::ignore = Read({"results", i}, toItem, source.results[i], item);
    }
}

/// Replaces the status of an item. A status other than `Succeeded` destroys what the item holds.
template<typename TWireItem, typename TItem>
void ReadStatus(TWireItem const& source, TItem& destination)
{
    Data::ThriftToOperationStatusConverter const toStatus;
    auto status = DefaultFailure;
    std::ignore = Read("operationStatus", toStatus, source.operationStatus, status);
    destination.OperationStatus(status);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail

#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Guid.h"
#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"
#include "tests/Thrift/Commands/Values.h"
#include "tests/Thrift/RoundTrip.h"

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Talvo::Tests
{

using Corvane::Notification::ClipCommandEventArgs;
using RequestSource = ClipCommandEventArgs::RequestSource;

/// The clip command block of an event.
struct Block
{
    unsigned int localMachineSerial = 0;
    RequestSource requestSource = RequestSource::Unknown;
    unsigned int operationNumber = 0;
    unsigned short userTicket = 0;
    Corvane::Data::Guid commandGuid = Corvane::Data::Guid::Empty();
    int subCommandIndex = 0;
    long long databaseRevision = 0;

    /// Puts it into an event, whatever that was built with.
    void Fill(ClipCommandEventArgs& event) const
    {
        event = ClipCommandEventArgs(localMachineSerial, requestSource, operationNumber, userTicket, commandGuid,
                                     databaseRevision);
        event.subCommandIndex = subCommandIndex;
    }
};

inline Block FullBlock()
{
    return {0xFFFFFFFE, RequestSource::Network, 0x80000001, 0xFFFD, Id('c'), -4, -0x100000005};
}

inline Block HeldBlock()
{
    return {1, RequestSource::Local, 2, 3, Id('h'), 4, 5};
}

/// What an event holds whose block failed: all but the database revision is as good as not there.
inline Block Placeholders()
{
    Block block;
    block.databaseRevision = FullBlock().databaseRevision;
    return block;
}

/// The printed record, in which a short name stands for each nested record.
template<typename TWire>
std::string Shown(TWire const& wire, std::initializer_list<std::pair<std::string, std::string_view>> const& names)
{
    auto text = Printed(wire);
    for (auto const& [nested, name] : names)
        if (auto const at = text.find(nested); at != std::string::npos) text.replace(at, nested.size(), name);
    return text;
}

/// What a reader finds when one field was not sent, for each field in turn.
template<typename TWire>
std::vector<TWire> EachFieldMissing(TWire const& wire)
{
    auto const fields = FieldByField(wire);
    std::vector<TWire> records;
    for (std::size_t missing = 0; missing < fields.size(); ++missing)
    {
        std::string bytes;
        for (std::size_t i = 0; i < fields.size(); ++i)
            if (i != missing) bytes.append(fields[i], 0, fields[i].size() - 1);
        records.push_back(Read<TWire>(bytes + '\0'));
    }
    return records;
}

} // namespace Talvo::Tests

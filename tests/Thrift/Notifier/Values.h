#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Guid.h"
#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"
#include "tests/Thrift/Commands/Values.h"
#include "tests/Thrift/Converters.h"

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

    /// Replaces the block of an event.
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

/// Returns the block of an event whose block failed to convert: all fields except the database revision have
/// placeholders.
inline Block Placeholders()
{
    Block block;
    block.databaseRevision = FullBlock().databaseRevision;
    return block;
}

} // namespace Talvo::Tests

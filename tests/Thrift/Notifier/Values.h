#pragma once

#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"
#include "tests/Thrift/Commands/Values.h"
#include "tests/Thrift/Converters.h"

namespace Talvo::Tests
{

/// Returns an event with a clip command block in which no field has its default, and with these further arguments of its
/// constructor.
template<typename TEvent>
TEvent SomeEvent(auto const&... more)
{
    TEvent event(0xFFFFFFFE, Corvane::Notification::ClipCommandEventArgs::RequestSource::Network, 0x80000001, 0xFFFD,
                 Id('c'), -0x100000005, more...);
    event.subCommandIndex = -4;
    return event;
}

} // namespace Talvo::Tests

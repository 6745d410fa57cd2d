#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// Event: a clip is being created.
struct ClipCreationEventArgs : ClipCommandEventArgs
{
    /// How the clip is created.
    enum class CreationType : std::int32_t
    {
        Make = 0,
        Copy = 1,
        ZarfRestore = 2,
        GbeRestore = 3,
        Unknown = 4
    };

    /// The network that transfers the clip. `Unknown` is between the plain and the push values.
    enum class NetworkType : std::int32_t
    {
        Sdti = 0,
        Gbe = 1,
        Unknown = 2,
        PushSdti = 3,
        PushGbe = 4,
        PushUnknown = 5
    };

    /// Takes the fields of ClipCommandEventArgs, then the event's own fields in their order.
    ClipCreationEventArgs(unsigned int machineSerialNumber, RequestSource source, unsigned int number,
                          unsigned short ticket, Data::Guid const& guid, long long revision,
                          Data::Clips::Clip const& firstClip, Data::Clips::Clip const& secondClip,
                          CreationType creation, NetworkType network)
        : ClipCommandEventArgs(machineSerialNumber, source, number, ticket, guid, revision)
        , sourceClip(firstClip)
        , newClip(secondClip)
        , creationType(creation)
        , networkType(network)
    {
    }

    bool operator==(ClipCreationEventArgs const&) const = default;

    Data::Clips::Clip sourceClip;
    Data::Clips::Clip newClip;
    CreationType creationType;
    NetworkType networkType;
};

} // namespace Talvo::Corvane::Notification

#pragma once

#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"
#include "tests/Thrift/Data/Values.h"

namespace Talvo::Tests
{

/// Returns the entry of a player without overrides. Its identifier has no zero byte.
inline Corvane::Multiviewer::PlayerDataOverrides NoOverrides(char const fill)
{
    Corvane::Multiviewer::PlayerDataOverrides overrides;
    overrides.PlayerGuid(Id<Corvane::Data::Channels::Guid>(fill));
    return overrides;
}

/// Returns an entry with all overrides. None is equal to the initial value in a wire record.
inline Corvane::Multiviewer::PlayerDataOverrides FullOverrides(char const fill)
{
    using namespace Corvane::Multiviewer;
    auto overrides = NoOverrides(fill);
    overrides.GetClipCreationBoudaries().TimePointIn({-3});
    overrides.GetClipCreationBoudaries().TimePointOut({4});
    overrides.IsFirstControlledMediaOutput(true);
    overrides.ControlMode(ControlType::None);
    overrides.ProgramMode(ProgramType::Preview);
    overrides.IsPostRollEnabled(true);
    overrides.Message("A message");
    return overrides;
}

} // namespace Talvo::Tests

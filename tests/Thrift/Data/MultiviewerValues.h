#pragma once

#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"
#include "tests/Thrift/Data/Values.h"

namespace Talvo::Tests
{

/// The entry of a player, whose identifier has no zero byte, without any override.
inline Corvane::Multiviewer::PlayerDataOverrides NoOverrides(char const fill)
{
    Corvane::Multiviewer::PlayerDataOverrides overrides;
    overrides.PlayerGuid(Id<Corvane::Data::Channels::Guid>(fill));
    return overrides;
}

/// All overrides, none of which is the value that a wire record starts with.
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

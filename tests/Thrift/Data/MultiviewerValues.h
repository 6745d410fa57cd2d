#pragma once

#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"

#include <string>

namespace Talvo::Tests
{

/// A player identifier without a zero byte.
inline Corvane::Data::Channels::Guid PlayerGuid(char const fill)
{
    Corvane::Data::Channels::Guid guid;
    std::string const bytes(Corvane::Data::Guid::Size, fill);
    static_cast<Corvane::Data::Guid&>(guid) =
        Corvane::Data::Guid(reinterpret_cast<unsigned char const*>(bytes.data()), Corvane::Data::Guid::Size);
    return guid;
}

/// The entry of that player without any override.
inline Corvane::Multiviewer::PlayerDataOverrides NoOverrides(char const fill)
{
    Corvane::Multiviewer::PlayerDataOverrides overrides;
    overrides.PlayerGuid(PlayerGuid(fill));
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

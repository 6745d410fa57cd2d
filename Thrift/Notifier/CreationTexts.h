#pragma once

// Internal, never installed.

#include "Domain/CorvaneData/Notification/ClipCreationEventArgs.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

using CreationType = Notification::ClipCreationEventArgs::CreationType;
using NetworkType = Notification::ClipCreationEventArgs::NetworkType;

// The words on the wire, each at the index of its enumerator. They are case-sensitive. A number without a word is
// written as "Unknown", and an unknown word reads as `Unknown`.
inline constexpr std::array<std::string_view, 5> CreationWords{"Make", "Copy", "ZarfRestore", "GbeRestore", "Unknown"};
inline constexpr std::array<std::string_view, 6> NetworkWords{"Sdti",     "Gbe",     "Unknown",
                                                              "PushSdti", "PushGbe", "PushUnknown"};

template<typename TEnumeration, std::size_t Count>
constexpr std::string_view Word(std::array<std::string_view, Count> const& words, TEnumeration const value) noexcept
{
    auto const number = static_cast<std::size_t>(value);
    return number < Count ? words[number] : "Unknown";
}

template<typename TEnumeration, std::size_t Count>
constexpr TEnumeration FromWord(std::array<std::string_view, Count> const& words, std::string_view const word) noexcept
{
    for (std::size_t number = 0; number < Count; ++number)
        if (words[number] == word) return static_cast<TEnumeration>(number);
    return TEnumeration::Unknown;
}

constexpr std::string_view Word(CreationType const value) noexcept
{
    return Word(CreationWords, value);
}

constexpr std::string_view Word(NetworkType const value) noexcept
{
    return Word(NetworkWords, value);
}

constexpr CreationType CreationTypeOf(std::string_view const word) noexcept
{
    return FromWord<CreationType>(CreationWords, word);
}

constexpr NetworkType NetworkTypeOf(std::string_view const word) noexcept
{
    return FromWord<NetworkType>(NetworkWords, word);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail

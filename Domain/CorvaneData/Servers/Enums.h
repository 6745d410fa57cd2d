#pragma once

#include <cstdint>

namespace Talvo::Corvane::Data::Servers
{

/// The chassis model of a server. The numbers are those of the wire.
enum class ServerChassis : std::int32_t
{
    None = 0,
    Orvik_A = 1,
    Orvik_B = 2,
    Senta_B = 3,
    OrvikMax_B = 4,
    OrvikMini_A = 5,
    Quill_A = 6,
    Tarn_A = 7,
    Tarn_B = 8,
    Wessa_A = 9,
    Wessa_C = 10,
    Wessa_B = 11,
    WessaMini_A = 12,
    Yarrow_A = 13,
    Yarrow_B = 14,
    Tarn_Q = 15,
    Wessa_Q = 16,
    TarnLink = 17,
    WessaPro = 18
};

} // namespace Talvo::Corvane::Data::Servers

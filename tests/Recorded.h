#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

namespace Talvo::Tests
{

/// Compares a text with the recorded file. If TALVO_RENEW_RECORDED is set in the environment, writes the file first.
inline void ExpectRecorded(std::string const& text, std::string const& name)
{
    auto const path = std::string(TALVO_RECORDED) + '/' + name;
    if (std::getenv("TALVO_RENEW_RECORDED") != nullptr) std::ofstream(path) << text;
    std::ostringstream recorded;
    recorded << std::ifstream(path).rdbuf();
    EXPECT_EQ(text, recorded.str());
}

} // namespace Talvo::Tests

// Parses arbitrary text as a time code. The result has to agree with the rules of the text form.

#include "TimePoints/TalvoTimeCodeParser.h"
#include "tests/TimePoints/TimeCodeDefinition.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* const data, std::size_t const size)
{
    using namespace Talvo::TimePoints;

    std::string const text(reinterpret_cast<char const*>(data), size);
    TalvoTimeCodeParser const parser;
    auto const found = Outcome([&] { return Describe(parser.Parse(text)); });
    if (size > 256) return 0; // std::regex recurses once per character

    auto const expected = ReferenceOutcome(text);
    if (found != expected || parser.TryParse(text).first != (expected.find(": ") == std::string::npos))
    {
        std::fprintf(stderr, "'%s': %s, expected %s\n", text.c_str(), found.c_str(), expected.c_str());
        std::abort();
    }
    return 0;
}

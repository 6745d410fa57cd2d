#include "tests/schema/RecordFiller.h"
#include "tools/Protocols.h"
#include "tools/RecordTypes.h"

#include <gtest/gtest.h>
#include <thrift/protocol/TProtocolException.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>
#include <tuple>
#include <vector>

namespace
{

using namespace Talvo::Tools;
using Talvo::Tests::RecordFiller;

std::vector<RecordType> ConvertibleTypes()
{
    std::vector<RecordType> types;
    for (auto const& type : RecordTypes())
        if (type.throughDomain != nullptr) types.push_back(type);
    return types;
}

/// Whether the work, which is done in another process, ends it.
bool EndsProcess(auto const& work)
{
    auto const child = fork();
    if (child == 0)
    {
        std::set_terminate([] { _exit(1); });
        work();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status != 0;
}

/// The numbers with which most of a record converts: nothing before a hazard fails then.
std::vector<std::int16_t> ConvertibleNumbers(RecordType const& type)
{
    std::vector<std::int16_t> best;
    std::size_t most = 0;
    for (auto const& numbers : {std::vector<std::int16_t>{1}, {2}, {1, 2, 3}})
    {
        auto filler = RecordFiller::Convertible(numbers);
        auto const record = type.make();
        record->Read(filler);
        if (!type.findHazards(*record).empty()) continue;
        auto const trip = type.throughDomain(*record);
        auto const size = trip.record == nullptr ? 0 : Encode(*trip.record, Protocol::Binary).size();
        if (size > most) std::tie(best, most) = std::tuple(numbers, size);
    }
    return best;
}

class EveryHazard : public testing::TestWithParam<RecordType>
{
};

INSTANTIATE_TEST_SUITE_P(Records, EveryHazard, testing::ValuesIn(ConvertibleTypes()),
                         [](auto const& type) { return std::string(type.param.name); });

TEST_P(EveryHazard, IsJustWhatEndsTheProcess)
{
    constexpr auto* NoForm = "noon";
    constexpr auto* NoDay = "2024-02-30T00:00:00:00@50";
    constexpr std::int16_t NoLocation = 110;

    auto const& type = GetParam();
    auto const numbers = ConvertibleNumbers(type);
    ASSERT_FALSE(numbers.empty());
    auto const expectExact = [&](std::size_t const value, char const* const text, RecordFiller::Filter const& offered)
    {
        auto filler = RecordFiller::Convertible(numbers, offered);
        filler.Spoil(value, text, NoLocation);
        auto const record = type.make();
        try
        {
            record->Read(filler);
        }
        catch (apache::thrift::protocol::TProtocolException const&)
        {
            return; // without a field that is required
        }

        auto const convert = [&] { std::ignore = type.throughDomain(*record); };
        auto const hazards = type.findHazards(*record);
        if (hazards.empty())
            convert(); // would end this process
        else
            EXPECT_TRUE(EndsProcess(convert)) << hazards.front().path;
    };

    auto full = RecordFiller::Convertible(numbers);
    type.make()->Read(full);
    for (std::size_t value = 0; value < full.Values(); ++value)
    {
        for (auto const* const text : {NoForm, NoDay}) expectExact(value, text, [](std::int16_t) { return true; });
        for (auto const missing : full.FieldIds())
            expectExact(value, NoDay, [missing](std::int16_t const id) { return id != missing; });
    }
}

} // namespace

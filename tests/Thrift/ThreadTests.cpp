#include "records/RecordFiller.h"
#include "tools/Protocols.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <barrier>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace
{

using namespace Talvo::Tools;
using testing::Contains;
using testing::Each;
using testing::Pair;
using testing::StartsWith;

struct Input
{
    RecordType const* type;
    std::unique_ptr<WireRecord> record;
};

/// Returns some values of each record that converts in both directions. Converts nothing yet.
std::vector<Input> Inputs()
{
    std::vector<Input> inputs;
    for (auto const& type : RecordTypes())
        for (auto const& numbers : {std::vector<std::int16_t>{1}, {2}, {1, 2, 3}})
        {
            if (!type.ConvertsBothWays()) continue;
            auto record = type.make();
            auto filler = Talvo::Records::RecordFiller::Convertible(numbers);
            record->Read(filler);
            inputs.push_back({&type, std::move(record)});
        }
    return inputs;
}

/// Returns the message of a failure, or the bytes after the round trip and whether they have the same meaning.
std::string Result(Input const& input)
{
    auto const trip = ThroughDomain(*input.type, *input.record);
    if (trip.record == nullptr) return std::string(trip.toWire ? trip.toWire->message : trip.toDomain.message);
    auto const same = input.type->equal == nullptr || SameDomain(*input.type, *input.record, *trip.record);
    return (same ? "came back as " : "came back changed as ") + Encode(*trip.record, Protocol::Binary);
}

/// Converts the inputs from `first` on, then those before it. Returns the results in the order of the inputs.
std::vector<std::string> Results(std::vector<Input> const& inputs, std::size_t const first)
{
    std::vector<std::string> results(inputs.size());
    for (std::size_t i = 0; i < inputs.size(); ++i)
    {
        auto const index = (first + i) % inputs.size();
        results[index] = Result(inputs[index]);
    }
    return results;
}

TEST(Threads, ConvertConcurrentlyFromTheFirstConversionOn)
{
    constexpr std::size_t Count = 8;
    constexpr int Rounds = 20;
    auto const inputs = Inputs();

    std::vector<std::vector<std::string>> results(Count);
    std::barrier start(Count);
    {
        std::vector<std::jthread> threads;
        for (std::size_t thread = 0; thread < Count; ++thread)
            threads.emplace_back(
                [&, thread]
                {
                    // Half of the threads start with the same record, and each of the others with a different one.
                    auto const first = thread % 2 == 0 ? 0 : thread * inputs.size() / Count;
                    start.arrive_and_wait();
                    results[thread] = Results(inputs, first);
                    for (int round = 1; round < Rounds; ++round)
                        if (Results(inputs, first) != results[thread]) results[thread].clear();
                });
    }

    auto const alone = Results(inputs, 0);
    EXPECT_THAT(results, Each(alone));
    std::map<std::string_view, std::vector<std::string>> ofRecord;
    for (std::size_t i = 0; i < inputs.size(); ++i) ofRecord[inputs[i].type->name].push_back(alone[i]);
    EXPECT_THAT(ofRecord, Each(Pair(testing::_, Contains(StartsWith("came back")))));
}

} // namespace

#include "tests/schema/RecordFiller.h"
#include "tools/Protocols.h"
#include "tools/RecordTypes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <barrier>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace
{

using namespace Talvo::Tools;
using testing::Each;

struct Input
{
    RecordType const* type;
    std::unique_ptr<WireRecord> record;
};

/// Two values of each record that converts both ways. Nothing is converted yet.
std::vector<Input> Inputs()
{
    std::vector<Input> inputs;
    for (auto const& type : RecordTypes())
        for (auto const number : std::to_array<std::int16_t>({1, 2}))
        {
            if (type.throughDomain == nullptr) continue;
            auto record = type.make();
            auto filler = Talvo::Tests::RecordFiller::Convertible(number);
            record->Read(filler);
            inputs.push_back({&type, std::move(record)});
        }
    return inputs;
}

/// What became of the input: the message of a failure, or the bytes that came back and whether they mean the same.
std::string Result(Input const& input)
{
    if (auto const hazards = input.type->findHazards(*input.record); !hazards.empty()) return hazards.front().reason;
    auto const trip = input.type->throughDomain(*input.record);
    if (trip.record == nullptr) return std::string(trip.toWire ? trip.toWire->message : trip.toDomain.message);
    auto const same = input.type->sameDomain == nullptr || input.type->sameDomain(*input.record, *trip.record);
    return (same ? "came back as " : "came back changed as ") + Encode(*trip.record, Protocol::Binary);
}

/// The results from `first` on and then of those before, in the order of the inputs.
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

TEST(Threads, ManyMayConvertAtOnceFromTheFirstConversionOn)
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
                    // Half of them begin with the same record, the others each with one of their own.
                    auto const first = thread % 2 == 0 ? 0 : thread * inputs.size() / Count;
                    start.arrive_and_wait();
                    results[thread] = Results(inputs, first);
                    for (int round = 1; round < Rounds; ++round)
                        if (Results(inputs, first) != results[thread]) results[thread].clear();
                });
    }

    auto const alone = Results(inputs, 0);
    EXPECT_THAT(results, Each(alone));
    for (std::size_t i = 0; i < inputs.size(); i += 2)
        EXPECT_TRUE(alone[i].starts_with("came back") || alone[i + 1].starts_with("came back"))
            << inputs[i].type->name << ": " << alone[i] << ", " << alone[i + 1];
}

} // namespace

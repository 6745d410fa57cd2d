#include "benchmarks/Comparison.h"

#include "TimePoints/TalvoTimeCodeFormatter.h"
#include "TimePoints/TalvoTimeCodeParser.h"

#include <benchmark/benchmark.h>

#include <string>

namespace Talvo::Benchmarks
{

void AddTimeCodes(Comparisons& rows)
{
    static std::string const text = "2024-02-29T23:58:57;28@30";

    benchmark::RegisterBenchmark("copy of 25 characters",
                                 [](benchmark::State& state)
                                 {
                                     for (auto _ : state)
                                     {
                                         std::string copy(text);
                                         benchmark::DoNotOptimize(copy);
                                     }
                                 });
    benchmark::RegisterBenchmark("parse time code",
                                 [](benchmark::State& state)
                                 {
                                     TimePoints::TalvoTimeCodeParser const parser;
                                     for (auto _ : state)
                                     {
                                         auto timeCode = parser.Parse(text);
                                         benchmark::DoNotOptimize(timeCode);
                                     }
                                 });
    benchmark::RegisterBenchmark("format time code",
                                 [](benchmark::State& state)
                                 {
                                     TimePoints::TalvoTimeCodeFormatter const formatter;
                                     auto const timeCode = TimePoints::TalvoTimeCodeParser().Parse(text);
                                     for (auto _ : state)
                                     {
                                         auto formatted = formatter.Format(timeCode);
                                         benchmark::DoNotOptimize(formatted);
                                     }
                                 });

    rows.insert(rows.end(), {{"parse time code", "copy of 25 characters", 2.0},
                             {"format time code", "copy of 25 characters", 2.5}});
}

} // namespace Talvo::Benchmarks

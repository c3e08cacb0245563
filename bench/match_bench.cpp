// How fast the game does without a window what a player would wait for.
#include "career/Diary.h"
#include "platform/random/Uuid.h"
#include "tools/sim/MatchPlayer.h"

#include <benchmark/benchmark.h>

namespace {

using namespace vorbel;
using namespace vorbel::sim;

// items_per_second is matches a second on one core.
void playMatch(benchmark::State& state) {
    std::uint64_t seed = 1;
    double simulated = 0;
    for ([[maybe_unused]] auto _ : state) {
        MatchPlayer match({.seed = seed++, .red = AIDifficulty::hard, .blue = AIDifficulty::medium});
        if (!match.play()) {
            state.SkipWithError("a match did not end");
            break;
        }
        simulated += match.simulatedSeconds();
    }
    state.SetItemsProcessed(state.iterations());
    // How many times faster than real time.
    state.counters["speed-up"] = benchmark::Counter(simulated, benchmark::Counter::kIsRate);
}
BENCHMARK(playMatch)->Name("match between hard and medium without a window")->Unit(benchmark::kMillisecond);

void buildScene(benchmark::State& state) {
    SeededRandom random(1);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(GameLogic::create3DScene(random));
    }
}
BENCHMARK(buildScene)->Name("arena built")->Unit(benchmark::kMicrosecond);

void readDiary(benchmark::State& state) {
    constexpr std::size_t entries = 100'000;
    SeededRandom random(1);
    const std::string json =
        encodeDiary(std::vector<DiaryEntry>(entries, {randomUuid(random), {}, "diary.win", 1}));
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(decodeDiary(json));
    }
}
BENCHMARK(readDiary)->Name("diary of 100000 entries read")->Unit(benchmark::kMillisecond);

} // namespace

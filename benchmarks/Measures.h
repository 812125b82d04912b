#pragma once

#include <benchmark/benchmark.h>

#include <vector>

namespace ondrilo {

/// Times single calls, since a mean hides the slow ones, and counts what they allocate. Time is that of the
/// thread, so that what else runs on the machine does not count.
class Percentiles {
  public:
    template <typename Call>
    void Measure(Call call) {
        const std::size_t before = CountAllocations();
        const double start = ThreadMicroseconds();
        call();
        const double end = ThreadMicroseconds();
        allocations += CountAllocations() - before;
        microseconds.push_back(end - start);
    }
    /// A call that was timed elsewhere.
    void Add(double time) { microseconds.push_back(time); }
    /// Counters p50_us, p99_us, max_us and allocations (all calls together).
    void Report(benchmark::State& state);

  private:
    static double ThreadMicroseconds();
    static std::size_t CountAllocations();

    std::vector<double> microseconds;
    std::size_t allocations = 0;
};

/// Memory of this process in bytes: now, and at most since the last ResetPeakMemory.
struct Memory {
    double resident = 0;
    double peak = 0;
};
[[nodiscard]] Memory ReadMemory();
void ResetPeakMemory();

} // namespace ondrilo

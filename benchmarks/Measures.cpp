#include "benchmarks/Measures.h"

#include "benchmarks/AllocationCounter.h"

#include <algorithm>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <string>

namespace ondrilo {

double Percentiles::ThreadMicroseconds() {
    timespec now{};
    (void)::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

std::size_t Percentiles::CountAllocations() {
    return Allocations();
}

void Percentiles::Report(benchmark::State& state) {
    std::sort(microseconds.begin(), microseconds.end());
    const auto at = [this](std::size_t percent) {
        return microseconds[(microseconds.size() - 1) * percent / 100];
    };
    state.counters["p50_us"] = at(50);
    state.counters["p99_us"] = at(99);
    state.counters["max_us"] = at(100);
    state.counters["allocations"] = static_cast<double>(allocations);
}

Memory ReadMemory() {
    std::ifstream status("/proc/self/status");
    Memory memory;
    std::string name;
    while (status >> name) {
        double kilobytes = 0;
        if (name == "VmRSS:" && status >> kilobytes)
            memory.resident = kilobytes * 1024;
        else if (name == "VmHWM:" && status >> kilobytes)
            memory.peak = kilobytes * 1024;
    }
    return memory;
}

void ResetPeakMemory() {
    // What earlier runs freed counts as free.
    (void)::malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
}

} // namespace ondrilo

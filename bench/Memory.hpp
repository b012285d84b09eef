// Counts the bytes allocated through operator new while a measurement is on, for the peak-memory
// benchmarks. Off, the counting costs one predictable branch per allocation.
#pragma once

#include <cstddef>
#include <cstdint>

namespace qb::bench::memory {

struct Usage {
  std::int64_t peak = 0;  // the most allocated at once since start(), above what was allocated then
  std::int64_t now = 0;   // allocated now, above what was allocated at start()
};

// Starts counting from zero. Only one thread may allocate while counting is on.
void start();
Usage usage();
void stop();

// Resident memory of the process, in bytes: now, and the most since resetResidentPeak(). The reset
// needs Linux's /proc/self/clear_refs; without it the peak is the process's lifetime peak.
std::int64_t resident();
std::int64_t residentPeak();
void resetResidentPeak();

}  // namespace qb::bench::memory

// Replaces the global operator new and delete of the benchmark binary (and so of every library in it)
// with versions that can count.
#include "Memory.hpp"

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <new>
#include <string>

namespace qb::bench::memory {
namespace {

std::atomic<bool> counting{false};
std::int64_t current = 0;
std::int64_t highest = 0;

void* allocate(std::size_t size, std::size_t alignment) {
  if (size == 0) size = 1;
  void* p = alignment <= alignof(std::max_align_t) ? std::malloc(size) : std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
  if (!p) throw std::bad_alloc();
  if (counting.load(std::memory_order_relaxed)) {
    current += static_cast<std::int64_t>(malloc_usable_size(p));
    if (current > highest) highest = current;
  }
  return p;
}

void release(void* p) noexcept {
  if (!p) return;
  if (counting.load(std::memory_order_relaxed)) current -= static_cast<std::int64_t>(malloc_usable_size(p));
  std::free(p);
}

}  // namespace

void start() {
  current = 0;
  highest = 0;
  counting.store(true);
}

Usage usage() { return {highest, current}; }

void stop() { counting.store(false); }

namespace {
// A "VmRSS:   1234 kB" line of /proc/self/status, in bytes.
std::int64_t statusBytes(const std::string& field) {
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word) {
    if (word == field) {
      std::int64_t kb = 0;
      status >> kb;
      return kb * 1024;
    }
  }
  return 0;
}
}  // namespace

std::int64_t resident() { return statusBytes("VmRSS:"); }
std::int64_t residentPeak() { return statusBytes("VmHWM:"); }
void resetResidentPeak() {
  malloc_trim(0);
  std::ofstream("/proc/self/clear_refs") << "5";
}

}  // namespace qb::bench::memory

using qb::bench::memory::allocate;
using qb::bench::memory::release;

void* operator new(std::size_t size) { return allocate(size, 0); }
void* operator new[](std::size_t size) { return allocate(size, 0); }
void* operator new(std::size_t size, std::align_val_t a) { return allocate(size, static_cast<std::size_t>(a)); }
void* operator new[](std::size_t size, std::align_val_t a) { return allocate(size, static_cast<std::size_t>(a)); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  try {
    return allocate(size, 0);
  } catch (...) {
    return nullptr;
  }
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  try {
    return allocate(size, 0);
  } catch (...) {
    return nullptr;
  }
}
void operator delete(void* p) noexcept { release(p); }
void operator delete[](void* p) noexcept { release(p); }
void operator delete(void* p, std::size_t) noexcept { release(p); }
void operator delete[](void* p, std::size_t) noexcept { release(p); }
void operator delete(void* p, std::align_val_t) noexcept { release(p); }
void operator delete[](void* p, std::align_val_t) noexcept { release(p); }
void operator delete(void* p, std::size_t, std::align_val_t) noexcept { release(p); }
void operator delete[](void* p, std::size_t, std::align_val_t) noexcept { release(p); }
void operator delete(void* p, const std::nothrow_t&) noexcept { release(p); }
void operator delete[](void* p, const std::nothrow_t&) noexcept { release(p); }

// qb::Atomic<T>: a property cell whose every read and write is indivisible.
#pragma once

#include <atomic>
#include <thread>
#include <utility>

namespace qb {

/// Holds one property of a Dictionary-face object. `load` returns a copy and `store` replaces the value
/// as one step, so a reader on another thread sees either the old or the new value, never a mix. The
/// lock is held only to copy or swap; the old value is destroyed after it is released.
template <class T>
class Atomic {
 public:
  using value_type_ = T;

  Atomic() = default;
  Atomic(const Atomic&) = delete;
  Atomic& operator=(const Atomic&) = delete;

  T load() const {
    Guard guard(locked_);
    return value_;
  }

  void store(T value) {
    {
      Guard guard(locked_);
      std::swap(value_, value);
    }
  }

 private:
  class Guard {
   public:
    explicit Guard(std::atomic_flag& flag) : flag_(flag) {
      while (flag_.test_and_set(std::memory_order_acquire)) std::this_thread::yield();
    }
    ~Guard() { flag_.clear(std::memory_order_release); }
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;

   private:
    std::atomic_flag& flag_;
  };

  mutable std::atomic_flag locked_;
  T value_{};
};

}  // namespace qb

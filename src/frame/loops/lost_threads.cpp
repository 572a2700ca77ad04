#include "frame/loops/lost_threads.h"

#include <pthread.h>

#include <atomic>

namespace half_utils {

namespace {

std::atomic<bool> watching = false, lost = false;

void noteTheLoss() { lost.store(true, std::memory_order_relaxed); }

}  // namespace

// Two threads may both be the first one. Registering twice does no harm, and needs no lock, which a copied process
// might find locked for ever.
bool threadsAreLost() {
  if (!watching.load(std::memory_order_relaxed)) {
    pthread_atfork(nullptr, nullptr, &noteTheLoss);
    watching.store(true, std::memory_order_relaxed);
  }
  return lost.load(std::memory_order_relaxed);
}

}  // namespace half_utils

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <stdexcept>
#include <thread>

#include "app/Globals.h"
#include "formats/WorkFile.h"
#include "support/TestSupport.h"

using testing_support::TestSession;

// The busy flag stands before the body runs and falls on every way out, a throw included.
TEST(Worker, BusyFromBeforeTheStartToEveryWayOut) {
  TestSession t;
  std::promise<void> go;
  std::shared_future<void> released = go.get_future().share();
  std::atomic<int> seenInside{-1};
  StartWorker([&]() {
    seenInside = g_workerBusy.load();
    released.wait();
    return 7;
  });
  EXPECT_EQ(g_workerBusy.load(), 1);
  go.set_value();
  WaitForWorker(*t.s);
  EXPECT_EQ(seenInside.load(), 1);
  EXPECT_EQ(g_workerBusy.load(), 0);
  EXPECT_EQ(WorkerExitCode(), 7);

  StartWorker([]() -> int { throw std::runtime_error("decoder failure"); });
  WaitForWorker(*t.s);
  EXPECT_EQ(g_workerBusy.load(), 0);
  EXPECT_EQ(WorkerExitCode(), 1);
}

// A second start waits for the first worker: two bodies never run at once.
TEST(Worker, OneAtATime) {
  TestSession t;
  std::atomic<int> running{0}, most{0};
  auto body = [&]() {
    const int now = ++running;
    if (now > most) most = now;
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    --running;
    return 0;
  };
  StartWorker(body);
  StartWorker(body);
  StartWorker(body);
  WaitForWorker(*t.s);
  EXPECT_EQ(most.load(), 1);
  EXPECT_EQ(g_workerBusy.load(), 0);
}

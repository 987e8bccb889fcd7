#include "batch/BatchMeasure.h"

#include <mutex>

#include "app/HeadlessTest.h"
#include "app/Session.h"
#include "batch/BatchControl.h"

namespace {

// The single-file road keeps its state in program-wide paths: one file at a time.
std::mutex g_roadMutex;

// The measurement's poll point: holds it while paused and turns a cancel into the
// session's cancel request.
class ControlPump : public IPump {
 public:
  ControlPump(BatchControl& control, Session& s) : m_control(control), m_s(s) {}
  void ProcessEvents() override {
    if (!m_control.WorkerPoll()) m_s.m_cancelRequested = 1;
  }

 private:
  BatchControl& m_control;
  Session& m_s;
};

}  // namespace

bool MeasureForBatchIsParallel() { return false; }

BatchMeasureResult MeasureForBatch(const BatchMeasureRequest& request, BatchControl& control) {
  BatchMeasureResult out;
  std::lock_guard<std::mutex> lock(g_roadMutex);
  if (control.IsCancelled()) {
    out.status = BatchMeasureResult::Cancelled;
    return out;
  }
  Session s;
  RecordingPrompt prompt;
  ControlPump pump(control, s);
  s.m_prompt.SetUi(&prompt);
  s.m_pump = &pump;
  HeadlessOptions o;
  o.testMode = request.kind == kKindMp3 ? 1 : request.testMode;
  o.showDb = request.showDb ? 1 : 0;
  o.useLog = false;
  const HeadlessReport r = TestFileHeadless(s, prompt, request.path, o);
  out.channels = r.channels;
  out.bits = r.bits;
  out.durationMs = r.durationMs;
  out.sampleBytes = r.sampleBytesRead;
  if (r.ok) {
    out.status = BatchMeasureResult::Ok;
    out.result = r.result;
  } else {
    out.status = control.IsCancelled() ? BatchMeasureResult::Cancelled : BatchMeasureResult::Failed;
    out.error = r.error;
  }
  return out;
}

#pragma once
// The batch's one way to measure a file: a file in, its LevelResult out, on any thread,
// without the test log (the run's coordinator owns it). Every worker of a run calls this
// and nothing else of the measurement road.
#include <QString>
#include <cstdint>
#include <functional>

#include "level/LevelResult.h"

class BatchControl;

struct BatchMeasureRequest {
  QString path;      // full path of the source
  int kind = 0;      // the row's kind
  int testMode = 0;  // 0 peak, 1 average (MP3 rows always take the average)
  bool showDb = false;
  // The file may take threads of its own beside the worker's (the analysis, the second
  // channel's filters). Off while every core has a file of its own: the threads would
  // only take turns with the other workers.
  bool helpers = false;
};

struct BatchMeasureResult {
  enum Status { Ok, Failed, Cancelled } status = Failed;
  QString error;            // the program's message for a failed file
  LevelResult result;       // this test's group filled, the others marked absent
  int channels = 0;
  int bits = 0;
  uint32_t durationMs = 0;
  uint64_t sampleBytes = 0; // sample bytes read or decoded
};

// Measures through the decoders and the analysis of the core. Polls `control` (pause
// holds it, cancel ends it with status Cancelled and no work file left).
BatchMeasureResult MeasureForBatch(const BatchMeasureRequest& request, BatchControl& control);

// True when MeasureForBatch may run on several threads at once; while false the runner's
// workers take turns.
bool MeasureForBatchIsParallel();

using BatchMeasureFn = std::function<BatchMeasureResult(const BatchMeasureRequest&, BatchControl&)>;

#include "app/MeasureFile.h"

#include <cmath>

#include "app/Job.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/Decode.h"
#include "formats/FlacSource.h"
#include "level/LevelAnalyser.h"

namespace {

MeasureStatus FromDecode(DecodeStatus s) {
  switch (s) {
    case DecodeStatus::Ok: return MeasureStatus::Ok;
    case DecodeStatus::Stopped: return MeasureStatus::Stopped;
    case DecodeStatus::CannotOpen: return MeasureStatus::CannotOpen;
    case DecodeStatus::Unsupported: return MeasureStatus::Unsupported;
    case DecodeStatus::Damaged: return MeasureStatus::Damaged;
    case DecodeStatus::NoSound: return MeasureStatus::NoSound;
    case DecodeStatus::SinkFailed: return MeasureStatus::CannotAnalyse;
  }
  return MeasureStatus::CannotOpen;
}

}  // namespace

MeasureReport MeasureFile(const QString& path, int kind, int testMode, IAbortable& control, bool helpers) {
  MeasureReport r;
  try {
    DecodeJob job;
    job.kind = kind;
    job.source = path;
    job.control = &control;
    // MPEG audio (also inside a WAV) begins the analyser with a format that has no peak test.
    // A test asks for its own group only: the other kernel's work would be thrown away.
    LevelAnalyser analyser(true, testMode != 1, testMode != 0);
    if (!helpers) analyser.StayOnCallerThread();
    DecodeToSink(job, analyser);
    if (job.Began()) analyser.End(SizeRule::AsAnnounced);  // a no-op after the decoder's own End
    r.messages = job.messages;
    r.flacError = job.flacError;
    r.channels = job.format.channels;
    r.sampleRate = job.format.sampleRate;
    r.bits = job.format.bits;
    r.formatTag = job.format.formatTag;
    r.sampleBytes = job.bytes;
    const uint64_t frameBytes = uint64_t(std::max(job.format.channels, 1)) * uint64_t(std::max(job.format.bits / 8, 1));
    if (job.format.sampleRate > 0)
      r.durationMs = uint32_t(std::llround(double(job.bytes / frameBytes) * 1000.0 / job.format.sampleRate));

    r.status = FromDecode(job.status);
    // An Ogg stream with a hole keeps what came before it, as its work file does; every
    // other damage stops the test.
    if (r.status == MeasureStatus::Damaged && kind == kKindOgg && !job.stopsTest) r.status = MeasureStatus::Ok;
    if (kind == kKindFlac && job.flacError != kFlacNoError && r.status != MeasureStatus::Stopped)
      r.status = MeasureStatus::Damaged;
    if (r.status == MeasureStatus::Ok && analyser.Frames() == 0) r.status = MeasureStatus::NoSound;
    if (r.status == MeasureStatus::NoSound && r.messages.isEmpty())
      r.messages << Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path +
                        Tonvane::tr(" does not contain a sound data. Therefore the test is impossible.");
    if (r.status != MeasureStatus::Ok) return r;

    r.result = analyser.Result();
    if (testMode == 0 && job.format.mpeg)
      r.status = MeasureStatus::PeakNotOffered;
    else if (testMode == 0 && !analyser.PeakMeasured())
      r.status = MeasureStatus::Unsupported;
    else if (testMode == 1 && !analyser.GainMeasured())
      r.status = MeasureStatus::CannotAnalyse;
  } catch (...) {
    r.status = MeasureStatus::CannotOpen;
  }
  return r;
}

void TakeGroup(LevelResult& to, const LevelResult& from, int testMode, bool showDb) {
  if (testMode == 1) {
    to.GainLeft = from.GainLeft;
    to.GainRight = from.GainRight;
    to.NoClippingLeft = from.NoClippingLeft;
    to.NoClippingRight = from.NoClippingRight;
  } else if (showDb) {
    to.WavPikLeft = from.WavPikLeft;
    to.WavPikRight = from.WavPikRight;
    to.WavPikNoClippingLeft = from.WavPikNoClippingLeft;
    to.WavPikNoClippingRight = from.WavPikNoClippingRight;
  } else {
    to.WavLeft = from.WavLeft;
    to.WavRight = from.WavRight;
  }
}

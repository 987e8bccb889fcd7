#pragma once
// One file measured from its source in a single pass, with no work file: the format's
// decode loop writes to the streaming analyser, which gives the peak groups (Wav, WavPik)
// and the Gain group of LevelResult at once. This is the core entry point of every
// headless measurement: tonvane-cli and the batch's parallel workers.
//
// Runs on any thread, any number at a time: it touches no Session and no global, shows
// nothing (the messages come back in the report) and creates, moves or deletes no file.
// The figures are bit for bit those of the window's road (work file, then the peak scanner
// and RMS) for the same samples.
#include <QString>
#include <QStringList>
#include <cstdint>

#include "level/LevelResult.h"

class IAbortable;

enum class MeasureStatus {
  Ok,             // the result holds the groups the test asked for
  Stopped,        // the control aborted; no result
  CannotOpen,     // missing, unreadable, or not a file of its kind
  Unsupported,    // a layout the program does not test (more than two channels, a width)
  NoSound,        // no samples at all (an empty data chunk, a stream of unknown length)
  Damaged,        // the stream has errors that stop a test (FLAC errors, a damaged APE frame)
  CannotAnalyse,  // the average test could not analyse the samples (a rate it does not take)
  PeakNotOffered, // the peak test of an MPEG audio file
};

struct MeasureReport {
  MeasureStatus status = MeasureStatus::CannotOpen;
  // The program's messages for this file, as the window would have shown them, in order.
  QStringList messages;
  // Every group the kind allows and the samples gave: the peak groups for all kinds but
  // MPEG audio, the Gain group when the average test could analyse. The others keep their
  // not-measured marks; a mono file fills the left fields only.
  LevelResult result;
  // The decoded stream as measured.
  int channels = 0;
  int sampleRate = 0;
  int bits = 0;           // of the samples measured (MPEG audio: 32, the decoder's float)
  int formatTag = 0;      // 1 integer, 3 float
  uint32_t durationMs = 0;  // of the samples measured, rounded
  uint64_t sampleBytes = 0; // decoded sample bytes
  int flacError = 4;        // the FLAC decoder's last error (4: none), for its message
};

// Measures `path` as a file of `kind` (SourceKind; kKindAac and kKindAlac both mean an MP4
// or raw AAC file, told apart by its content; kKindWav follows the file's format tag, so a
// WAV holding MPEG Layer III is measured as MPEG audio). `testMode` says which group must
// come through for Ok: 0 peak, 1 average, -1 whatever the samples give. `control` can stop or pause it from
// another thread and receives the progress. `helpers`: the analysis may take threads of
// its own beside the caller's; false keeps the whole measurement on the calling thread
// (a caller that already keeps every core busy). The figures are the same. Never throws.
MeasureReport MeasureFile(const QString& path, int kind, int testMode, IAbortable& control,
                          bool helpers = true);

// Copies the group of one test (1: average; 0: peak in dB when `showDb`, else in percent)
// from a measurement into `to`; the other groups of `to` stay as they are.
void TakeGroup(LevelResult& to, const LevelResult& from, int testMode, bool showDb);

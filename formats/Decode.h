#pragma once
// Decoders as jobs. A job carries its own paths, its control (cancel, pause, progress) and
// its outcome; it runs on any thread and never touches the session or a global path. Each
// format has one decode loop that writes interleaved PCM to a PcmSink: the window's open
// gives it the work file, a measurement without a work file the streaming analyser.
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>

#include "app/Prompt.h"
#include "formats/PcmSink.h"

class IAbortable;
class Prompter;

enum class DecodeStatus {
  Ok,           // the stream was decoded to its end
  Stopped,      // the control asked to stop
  CannotOpen,   // the source can't be read, or is not of its kind
  Unsupported,  // a layout the program does not test (channels, sample width)
  Damaged,      // decoding ended at damaged data; what came before it was written
  NoSound,      // the stream holds no samples (or does not say how many)
  SinkFailed,   // the sink refused the format or the samples (a work file on a full disk)
};

struct DecodeJob {
  // --- What to decode ---
  int kind = -1;       // SourceKind; kKindAac and kKindAlac both mean "an MP4 or raw AAC file"
  QString source;      // the source's path
  // WAV: the "fmt " block and the data chunk of the source, as the header scan found them.
  QByteArray fmtBlock;
  uint64_t dataOffset = 0;
  uint64_t dataSize = 0;
  IAbortable* control = nullptr;  // null: never stops, no progress
  // Messages are shown here as they come (the prompt is safe to call from a worker);
  // null: they are only collected in `messages`.
  Prompter* prompt = nullptr;
  // Where the FLAC decoder's last error goes (kFlacNoError while none came); may be null.
  std::atomic<int>* flacStatus = nullptr;

  // --- What became of it ---
  DecodeStatus status = DecodeStatus::Ok;
  QStringList messages;
  PcmFormat format;         // as given to the sink's Begin; channels 0 when nothing began
  uint64_t bytes = 0;       // sample bytes written
  float runningTotal = 0;   // the same count kept in single precision, as the work file's sizes are
  bool stopsTest = false;   // the failure leaves nothing worth measuring (a damaged APE stream)
  int flacError = 4;        // the FLAC decoder's last error (4: none)

  // A message of the decoder: collected, and shown at once when a prompt is given.
  void Report(const QString& text, PromptIcon icon = PromptIcon::Error, const QString& family = {});
  // The control's checkpoint; true when there is none.
  bool Checkpoint(double fraction);
  // Begins the sink with `f`; a refusal reports `failure` (if any) and sets SinkFailed.
  bool Begin(PcmSink& sink, const PcmFormat& f, const QString& failure = {});
  // Writes to the sink and counts; a failure reports `failure` and sets SinkFailed. `lent`:
  // the bytes stay where they are until the sink's End (PcmSink::WriteLent).
  bool Write(PcmSink& sink, const void* data, size_t n, const QString& failure = {}, bool lent = false);
  bool Began() const { return format.channels > 0; }
};

// Decodes job.source by its kind into `sink`, through the format's decode loop, and ends
// the sink (also after a failure, once it has begun). Returns job.status.
DecodeStatus DecodeToSink(DecodeJob& job, PcmSink& sink);

// The decode loops, one per format (each in its format's file).
DecodeStatus DecodeFlac(DecodeJob& job, PcmSink& sink);
DecodeStatus DecodeOgg(DecodeJob& job, PcmSink& sink);
DecodeStatus DecodeApe(DecodeJob& job, PcmSink& sink);
DecodeStatus DecodeMp4OrAac(DecodeJob& job, PcmSink& sink);  // AAC in MP4, raw AAC, ALAC
DecodeStatus DecodeWavConversion(DecodeJob& job, PcmSink& sink);
DecodeStatus DecodeMpeg(DecodeJob& job, PcmSink& sink);
// PCM and IEEE float WAV: the data chunk's samples as they stand.
DecodeStatus DecodeWavPcm(DecodeJob& job, PcmSink& sink);

// What a RIFF WAVE header scan finds in the first bytes of a file, as the WAV reader scans:
// "data" from offset 16 and "fmt " from offset 12, up to the RIFF size or the scan span.
struct WavHeaderScan {
  bool wave = false;        // "WAVE" at offset 8
  bool fmtFound = false;
  QByteArray fmtBlock;
  uint64_t dataOffset = 0;  // 0 when no "data" was found
  uint32_t dataSize = 0;
  uint16_t tag = 0, channels = 0, bits = 0, blockAlign = 0;
  uint32_t sampleRate = 0;
};
// `bytes` holds `size` bytes from the file's start: the whole file, or at least the scan
// span; nothing past `size` is read.
WavHeaderScan ScanWavHeader(const uint8_t* bytes, uint64_t size, uint64_t scanSpan);

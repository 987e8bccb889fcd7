#pragma once
// The property scan of the batch list: what one file is, read with as little work as the
// format allows (a window of a WAVE file, the headers of MP4, FLAC, Ogg and Monkey's Audio,
// a few frames of a constant-rate MP3). It makes no work file, touches no session and no
// global, and may run on any thread.
#include <QString>
#include <functional>

#include "batch/BatchFileInfo.h"

enum class ScanOutcome {
  Row,       // `out` is the row's record (good, or bad with its reason in out.error)
  NoRow,     // a WAVE of MPEG audio in a WAVE batch: it belongs to an MP3 batch
  Cancelled, // the pump said stop during an MP3 frame walk
};

// Scans `path` for a batch of `batchKind` (kAnyKind: the file's own kind; a WAVE carrying
// MPEG Layer III then counts as MP3). `pump` (may be empty) runs at the start and during a
// frame walk; false from it cancels. A bad file's numbers are zero and its cells empty.
// `reportFamily` tells the "Don't show again" family of the message, if there is one.
ScanOutcome ScanFile(const QString& path, int batchKind, BatchFileInfo& out,
                     const std::function<bool()>& pump = {}, QString* reportFamily = nullptr);

// Kind 1's test of a WAVE name: true when the file's format tag is 0x55 (MPEG Layer III).
bool WavCarriesMpeg(const QString& path);

#pragma once
// Work files: the PCM WAV (or byte copy) beside the source that the test and the player
// read, the 44-byte header every decoder writes, and the one worker thread at a time.
#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <functional>

#include "formats/PcmSink.h"

struct Session;

constexpr int kWorkHeaderSize = 44;
constexpr uint32_t kMaxWorkDataSize = 0xFFFFFF00u;

// The source's full path with its suffix replaced by ".tmp" (cut at the last "." of the
// name, or ".tmp" added). On an optical or read-only mount the source itself.
QString WorkPathFor(const QString& source, int driveType);

// Where the work file of `beside` (a WorkPathFor path) really goes: beside the source, or,
// when that folder cannot be written (another user's folder), under the same name in
// $XDG_CACHE_HOME/tonvane/work/, which is made when missing.
QString WritableWorkPath(const QString& beside);

// 5 for a path on an iso9660 or udf mount, or on a mount that is read-only; else 3.
int DriveTypeOf(const QString& path);

// The 44-byte header: RIFF size = dataBytes + 36, format tag 1 (or 3 for float output).
// Both size fields are clamped to 0xFFFFFF00.
QByteArray MakeWorkHeader(int channels, int sampleRate, int bits, uint16_t formatTag, uint32_t dataBytes);

// Clears the owner's write bit problem first (a read-only file), then deletes. True when
// the file is gone afterwards.
bool DeleteWorkFile(const QString& path);

// A PCM work file: creates the file (never the source), writes the header, takes the
// samples, and settles the two size fields at the end by the decoder's rule. As a sink it
// opens its path at Begin unless Open came first.
class WorkFileWriter : public PcmSink {
 public:
  WorkFileWriter() = default;
  // A sink for `path`; `sourcePath` is the file it must never be.
  WorkFileWriter(const QString& path, const QString& sourcePath) : m_path(path), m_source(sourcePath) {}
  ~WorkFileWriter() override;
  WorkFileWriter(const WorkFileWriter&) = delete;
  WorkFileWriter& operator=(const WorkFileWriter&) = delete;

  // Creates (or truncates) `path` and writes the header. On failure returns false and
  // leaves the errno value in LastErrno(). Refuses the source path itself.
  bool Create(const QString& path, int channels, int sampleRate, int bits, uint16_t formatTag,
              uint32_t dataBytes, const QString& sourcePath = {});
  // The two halves of Create, for decoders that write the header only once the stream
  // tells its format: Open creates (or truncates) the file and writes nothing.
  bool Open(const QString& path, const QString& sourcePath = {});
  // Writes the 44-byte header at the current position; header bytes are not sample bytes.
  bool WriteHeader(int channels, int sampleRate, int bits, uint16_t formatTag, uint32_t dataBytes);
  bool Write(const void* data, size_t bytes) override;
  bool Begin(const PcmFormat& format) override;
  bool End(SizeRule rule) override;
  // The message for the last failure: the file could not be created, a write or a seek
  // failed.
  QString FailureText() const override;
  // Sizes from `total` as a float: riffSize = total + 36, clamped to 0xFFFFFF00.
  // Returns false on a failed seek or write (LastStep tells which: 1 seek, 2 write).
  bool PatchSizes(float total);
  // Rewrites each size field only if it differs (readers that knew the size in advance).
  bool PatchSizesIfDifferent(uint32_t dataBytes);
  void Close();

  bool IsOpen() const { return m_fd >= 0; }
  uint64_t BytesWritten() const { return m_written; }
  float Total() const { return m_total; }
  int LastErrno() const { return m_errno; }
  int LastStep() const { return m_lastStep; }
  const QString& Path() const { return m_path; }

 private:
  bool WriteAt(uint64_t offset, uint32_t value);
  int m_fd = -1;
  QString m_path;
  QString m_source;
  bool m_created = false;  // the file exists (a failure after this is a write failure)
  bool m_headerWritten = false;  // by Begin
  uint64_t m_written = 0;
  float m_total = 0;  // the running total as the decoders keep it: single precision
  int m_errno = 0;
  int m_lastStep = 0;
};

// The end-of-decoding messages of a work file.
QString WorkSeekFailedText(const QString& workPath);
QString WorkWriteFailedText(const QString& workPath);

// The one worker of the window. StartWorker joins any earlier worker, sets g_workerBusy to
// 1 before the thread starts and clears it on every way out of `body`, which returns the
// thread's exit code (0 on success). `onMain` (may be empty) brings the job's outcome into
// the session; it runs on the window's thread when the ended worker is collected. False
// when no thread could be started (g_workerBusy is 0 again).
bool StartWorker(std::function<int()> body, std::function<void(Session&)> onMain = {});
// The one failure rule of a start: a thread that cannot start is reported (" create a
// copy of the flow descriptor copying the file is") and the reader gives up; nothing waits.
bool StartWorkerOrReport(Session& s, std::function<int()> body, std::function<void(Session&)> onMain = {});
// Joins an ended worker and runs its `onMain` on this thread; false while it runs or when
// there is none. The window's timer and the test call it.
bool CollectWorker(Session& s);
// Waits for the current worker while pumping the session (at 10 ms steps), then collects it.
void WaitForWorker(Session& s);
// Joins the worker without bringing its outcome in (program end).
void JoinWorker();
// Exit code of the last finished worker; -1 while it runs or if none ran.
int WorkerExitCode();

// The copy worker of WAV and MP3: copies g_sourcePath to g_workPath (a read-only work file
// left behind is overwritten; the source is only read). On failure shows
// " Sorry, but the program can not continue operation with the file: " + path + ". " +
// the system's text, where the path is the source for a full disk and the work file
// otherwise; clears g_workPath and sets g_copyFinished and g_copyFailed.
// Returns the exit code (0 or the error number, 112 for a full disk).
int CopyWorkerBody(Session& s);

// Finds the data chunk of a work file in its first bytes, as the test does when the reader
// left m_dataSize at 0: from i = 15 on, "data" at i + 1 gives the size at i + 5 and the
// offset i + 9. `limit` is the RIFF size at byte 4 (or the view's size when windowed), at
// most the file size. False when nothing is found.
bool FindDataChunk(const uint8_t* view, uint64_t viewSize, uint64_t limit, uint32_t& dataOffset,
                   uint32_t& dataSize);

// A read-only memory map of a file, or of a window of it.
// Maps the pages of [p, p + bytes) of a view in one call instead of taking a fault every
// few pages as they are read.
void PrefaultView(const uint8_t* p, uint64_t bytes);

class MappedFile {
 public:
  MappedFile() = default;
  ~MappedFile();
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;

  // Opens the file for reading; false with LastErrno() on failure.
  bool Open(const QString& path);
  // Maps [offset, offset + length) (offset a multiple of the page size); length is cut to
  // the file's end. Any earlier view is unmapped. Null on failure.
  const uint8_t* Map(uint64_t offset, uint64_t length);
  void Unmap();
  void Close();
  // Up to `length` bytes from the file's start, read rather than mapped (fewer on a short
  // read or an error).
  QByteArray ReadHead(uint64_t length);

  uint64_t Size() const { return m_size; }
  const uint8_t* View() const { return m_view; }
  uint64_t ViewSize() const { return m_viewSize; }
  int LastErrno() const { return m_errno; }

 private:
  int m_fd = -1;
  uint64_t m_size = 0;
  const uint8_t* m_view = nullptr;
  uint64_t m_viewSize = 0;
  int m_errno = 0;
};

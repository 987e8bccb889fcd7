#pragma once
// The text stream under the CSV engine: one file handle, UTF-8 with a byte-order mark on
// disk, lines ending in CR LF on disk and in a single line feed inside. Positions are byte
// offsets in the file, so a caller can go back and overwrite a row it has read.
//
// Opening takes an exclusive advisory lock (flock) on the file: a second open, in this
// process or another, fails while the first is open, as the log's flows expect.
#include <QByteArray>
#include <QString>
#include <cstdint>

class CsvFileStream {
 public:
  enum Mode {
    kCreate,  // create or truncate, write the byte-order mark ("wt")
    kUpdate,  // an existing file, read and update; the mark is skipped ("r+t")
  };
  enum Origin { kBegin, kCurrent, kEnd };

  CsvFileStream() = default;
  ~CsvFileStream();
  CsvFileStream(const CsvFileStream&) = delete;
  CsvFileStream& operator=(const CsvFileStream&) = delete;

  // False when the file cannot be opened or is locked; LastErrno() tells why.
  bool Open(const QString& path, Mode mode);
  // Adopts an open descriptor without locking it (the stream closes it). For in-memory
  // files in tests and fuzzing.
  bool Adopt(int fd, Mode mode);
  bool IsOpen() const { return m_fd >= 0; }
  // Writes what is pending and releases the file.
  bool Close();
  int Handle() const { return m_fd; }
  int LastErrno() const { return m_errno; }

  // The next line without its line feed (a CR before it is dropped, as on a text stream).
  // False at the end of the file or on a read error (LastErrno() non-zero then).
  bool ReadString(QString& line);
  // Byte offset where the line returned last began, and the length of its terminator
  // (2 for CR LF, 1 for LF, 0 for a last line without one).
  int64_t LineStart() const { return m_lineStart; }
  int LineTerminator() const { return m_lineTerminator; }

  int64_t Tell() const { return m_pos; }
  // Returns the new position, or -1.
  int64_t Seek(int64_t offset, Origin origin);
  int64_t SeekToEnd() { return Seek(0, kEnd); }
  // Size on disk plus what is pending past it; -1 on error.
  int64_t Size();

  // Buffers the text at the present position: UTF-8, LF as CR LF.
  void WriteString(const QString& text);
  // Buffers bytes as they are, without any translation.
  void WriteRaw(const QByteArray& bytes);
  // Writes the pending bytes. False on an error; the pending bytes are dropped then.
  bool Flush();
  // Writes the pending bytes so that a crash or a full disk part way cannot leave a line
  // that reads as complete (see the .cpp). An extension that fails is cut off again.
  bool FlushCommitted();
  // Forces the written bytes to the disk.
  bool Sync();
  bool Truncate(int64_t size);
  // Raw bytes at an offset, outside the stream's position.
  QByteArray ReadRaw(int64_t offset, int64_t count);
  // Appends up to `count` raw bytes at `offset` to `out`; the number read, or -1.
  int64_t ReadRawInto(QByteArray& out, int64_t offset, int64_t count);

  // The bytes WriteString puts on disk for a text.
  static QByteArray Encode(const QString& text);
  static constexpr char kBom[] = "\xEF\xBB\xBF";

 private:
  bool Fill();
  bool WriteAt(int64_t at, const char* data, int64_t size);
  void DropReadBuffer();

  int m_fd = -1;
  int m_errno = 0;
  QByteArray m_read;        // bytes read ahead; m_read[0] lies at m_readAt
  int64_t m_readAt = 0;
  qsizetype m_readPos = 0;  // next unread byte in m_read
  bool m_eof = false;
  int64_t m_pos = 0;        // logical position
  QByteArray m_pending;     // bytes to be written at m_pendingAt
  int64_t m_pendingAt = 0;
  int64_t m_lineStart = 0;
  int m_lineTerminator = 0;
};

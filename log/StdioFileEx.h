#pragma once
// CStdioFileEx: reads a playlist line by line, in UTF-16 (told by FF FE at the start) or in
// an 8-bit code page: 65001 for UTF-8, a Windows code page number, or by default the
// encoding of the user's locale.
#include <QByteArray>
#include <QString>
#include <cstdint>

class CStdioFileEx {
 public:
  enum OpenFlags : unsigned {
    modeRead = 0x0000,
    modeWrite = 0x0001,
    modeReadWrite = 0x0002,
    modeCreate = 0x1000,
    typeText = 0x4000,
    typeBinary = 0x8000,
  };
  enum Origin { begin = 0, current = 1, end = 2 };
  static constexpr int kCodePageUtf8 = 65001;

  CStdioFileEx() = default;
  ~CStdioFileEx();
  CStdioFileEx(const CStdioFileEx&) = delete;
  CStdioFileEx& operator=(const CStdioFileEx&) = delete;

  // -1: the encoding of the user's locale.
  void SetCodePage(int page) { m_codePage = page; }
  int GetCodePage() const { return m_codePage; }
  // The file is always read raw; text mode only means lines. False with errno set.
  bool Open(const QString& path, unsigned flags);
  void Close();
  bool IsOpen() const { return m_fd >= 0; }
  bool IsFileUnicodeText() const { return m_utf16; }
  // The next line without its line end. False at the end of the file.
  bool ReadString(QString& line);
  int64_t Seek(int64_t offset, Origin origin);
  int64_t GetPosition() const { return m_pos; }

  // The encoding name (for iconv) that a code page stands for; -1 gives the locale's.
  static QByteArray EncodingOfCodePage(int page);
  // Decodes 8-bit text of a code page.
  static QString Decode(const QByteArray& bytes, int page);

 private:
  bool ReadByte(char& c);

  int m_fd = -1;
  int m_codePage = -1;
  bool m_utf16 = false;
  bool m_atStart = false;
  int64_t m_pos = 0;
  QByteArray m_buf;
  qsizetype m_bufPos = 0;
  int64_t m_bufAt = 0;
};

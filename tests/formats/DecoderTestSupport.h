#pragma once
// Helpers for the decoder tests: a fixture copied into the test's own folder under a
// Unicode name (so tests running side by side never share a work file), opened the way the
// open pipeline does, and the work file compared with a reference decode.
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

#include "app/Globals.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"
#include "support/TestSupport.h"

namespace decoder_test {

using testing_support::Fixture;
using testing_support::ReadFile;
using testing_support::TestSession;

inline QString Stage(TestSession& t, const QString& fixture, const QString& name) {
  const QString to = t.Path(name);
  QFile::remove(to);
  EXPECT_TRUE(QFile::copy(Fixture(fixture), to)) << fixture.toStdString();
  return to;
}

inline uint32_t Le32(const QByteArray& b, int at) {
  return uint32_t(uint8_t(b[at])) | uint32_t(uint8_t(b[at + 1])) << 8 | uint32_t(uint8_t(b[at + 2])) << 16 |
         uint32_t(uint8_t(b[at + 3])) << 24;
}

// Opens `path` with a worker and waits for it; returns the reader's result.
inline int OpenAndWait(TestSession& t, const QString& path) {
  int ok = OpenFileHeadless(*t.s, path);
  WaitForWorker(*t.s);
  return ok;
}

// The work file must be the 44-byte header of its format followed by exactly the
// reference decode.
inline void ExpectWorkFile(const QString& workPath, const QString& refFixture, int channels, int rate,
                           int bits, uint16_t tag = 1) {
  const QByteArray work = ReadFile(workPath);
  const QByteArray ref = ReadFile(Fixture(refFixture));
  ASSERT_FALSE(ref.isEmpty()) << refFixture.toStdString();
  ASSERT_GE(work.size(), kWorkHeaderSize);
  EXPECT_EQ(work.left(kWorkHeaderSize), MakeWorkHeader(channels, rate, bits, tag, uint32_t(ref.size())));
  EXPECT_EQ(work.size() - kWorkHeaderSize, ref.size());
  EXPECT_TRUE(work.mid(kWorkHeaderSize) == ref) << "work file differs from " << refFixture.toStdString();
}

}  // namespace decoder_test

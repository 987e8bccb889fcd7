#include "formats/ApeSource.h"

#include "formats/OpenPipeline.h"

#include <cerrno>
#include <string>
#include <vector>

#include "app/FileErrors.h"
#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/ApeDecoder.h"
#include "formats/WorkFile.h"

namespace {

constexpr int64_t kBlocksPerRead = 1024;

APE_DECOMPRESS_HANDLE CreateDecoder(const QString& path, int& error) {
  const std::wstring wide = path.toStdWString();
  errno = 0;
  return c_APEDecompress_CreateW(wide.c_str(), &error);
}

QString NotOpenedText(const QString& path) {
  return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path + Tonvane::tr(" cannot be opened");
}

}  // namespace

QString ApeOpenFailureText(const QString& path, int error) {
  if (error == ape::kErrUnsupportedVersion)
    return NotOpenedText(path) +
           Tonvane::tr(". It was made by a version of Monkey's Audio older than 3.99, which the program does not decode.");
  return NotOpenedText(path) + Tonvane::tr(". It is not a Monkey's Audio file, or its header is damaged.");
}

QString ApeDecodeErrorText(const QString& path, int error) {
  const QString opening = Tonvane::tr("Sorry, but an error of opening has occurred decoding stream.");
  if (error == ape::kErrRead) return opening + Tonvane::tr(" The file ") + path + Tonvane::tr(" ends inside its sound data.");
  return opening + Tonvane::tr(" The file ") + path + Tonvane::tr(" is damaged: its sound data does not pass its check.");
}

int ApeWorkerBody(Session& s) {
  const QString source = g_sourcePath;
  const QString work = g_workPath;
  // Every failure ends the worker with its message; the test then stops rather than
  // measure a work file that lacks samples.
  auto failed = [] {
    g_copyFailed = 1;
    return 1;
  };

  int error = 0;
  APE_DECOMPRESS_HANDLE h = CreateDecoder(source, error);
  if (!h) {
    s.m_prompt.Message(NotOpenedText(source), PromptIcon::Error);
    return failed();
  }
  const int64_t dataBytes = c_APEDecompress_GetInfo(h, ape::kInfoWavDataBytes);
  const int channels = int(c_APEDecompress_GetInfo(h, ape::kInfoChannels));
  const int rate = int(c_APEDecompress_GetInfo(h, ape::kInfoSampleRate));
  const int bits = int(c_APEDecompress_GetInfo(h, ape::kInfoBitsPerSample));
  const uint32_t headerBytes = dataBytes > int64_t(kMaxWorkDataSize) ? kMaxWorkDataSize : uint32_t(dataBytes);

  WorkFileWriter out;
  if (!out.Open(work, source)) {
    s.m_prompt.Message(Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + work + Tonvane::tr(" cannot be created."), PromptIcon::Error);
    c_APEDecompress_Destroy(h);
    return failed();
  }
  if (!out.WriteHeader(channels, rate, bits, 1, headerBytes)) {
    out.Close();
    s.m_prompt.Message(WorkWriteFailedText(work), PromptIcon::Error);
    c_APEDecompress_Destroy(h);
    return failed();
  }

  const int64_t align = c_APEDecompress_GetInfo(h, ape::kInfoBlockAlign);
  std::vector<char> buffer(size_t(align * kBlocksPerRead));
  for (;;) {
    int64_t got = 0;
    const int rc = c_APEDecompress_GetData(h, buffer.data(), kBlocksPerRead, &got);
    // The blocks before a damaged frame are good; the damaged frame gives none.
    if (got > 0 && !out.Write(buffer.data(), size_t(got * align))) {
      out.Close();
      s.m_prompt.Message(WorkWriteFailedText(work), PromptIcon::Error);
      c_APEDecompress_Destroy(h);
      return failed();
    }
    if (rc != ape::kOk) {
      out.Close();
      s.m_prompt.Message(ApeDecodeErrorText(source, rc), PromptIcon::Error);
      c_APEDecompress_Destroy(h);
      return failed();
    }
    if (got == 0) break;
  }

  const double total = double(out.Total());
  const uint32_t written = total > double(kMaxWorkDataSize) ? kMaxWorkDataSize : uint32_t(total);
  if (!out.PatchSizesIfDifferent(written)) {
    s.m_prompt.Message(out.LastStep() == 1 ? WorkSeekFailedText(work) : WorkWriteFailedText(work),
                       PromptIcon::Error);
    out.Close();
    c_APEDecompress_Destroy(h);
    return failed();
  }
  out.Close();
  c_APEDecompress_Destroy(h);
  return 0;
}

int OpenApe(Session& s) {
  int error = 0;
  APE_DECOMPRESS_HANDLE h = CreateDecoder(s.m_fileName, error);
  if (!h) {
    if (error == ape::kErrRead && errno != 0)
      ReportFileError(s, Tonvane::tr(" cannot be opened"), s.m_fileName, QString(),
                      ErrorCodeFromErrno(errno, s.m_fileName), true);
    else
      s.m_prompt.Message(ApeOpenFailureText(s.m_fileName, error), PromptIcon::Error,
                         QStringLiteral("FileError:") + Tonvane::tr(" cannot be opened"));
    return 0;
  }

  s.m_formatTag = 1;
  s.m_bits = int(c_APEDecompress_GetInfo(h, ape::kInfoBitsPerSample));
  s.m_sampleRate = int(c_APEDecompress_GetInfo(h, ape::kInfoSampleRate));
  s.m_channels = int(c_APEDecompress_GetInfo(h, ape::kInfoChannels));
  const int64_t ms = c_APEDecompress_GetInfo(h, ape::kInfoLengthMs);
  s.m_durationMs = ms < 0 ? 0 : ms > int64_t(0xFFFFFFFF) ? 0xFFFFFFFFu : uint32_t(ms);
  s.m_levelLeft = s.m_levelRight = -1.0f;

  const bool supported = (s.m_channels == 1 || s.m_channels == 2) &&
                         (s.m_bits == 8 || s.m_bits == 16 || s.m_bits == 24);
  if (!supported) {
    c_APEDecompress_Destroy(h);
    RefuseUnsupportedFormat(s);
    return 0;
  }

  SetPcmPropertyLines(s, s.m_bits, s.m_channels, s.m_sampleRate);
  s.m_propertyLines[3] = Tonvane::tr("  Audio Format       APE");
  c_APEDecompress_Destroy(h);

  if (s.m_noWorker) return 1;
  Session* session = &s;
  StartWorker([session]() { return ApeWorkerBody(*session); });
  return 1;
}

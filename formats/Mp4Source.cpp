#include "formats/Mp4Source.h"

#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/AacDecode.h"
#include "formats/AacFile.h"
#include "formats/OpenPipeline.h"
#include "formats/Decode.h"
#include "formats/WorkFile.h"

int OpenMp4(Session& s) {
  s.m_levelLeft = s.m_levelRight = -1.0f;

  int type, isMp4, mpegVersion, channels, sampleRate, bits, bitRate;
  uint32_t durationMs;
  {
    AACFile probe(s, s.m_fileName, 1);
    type = probe.type();
    isMp4 = probe.isMp4();
    mpegVersion = probe.mpegVersion();
    channels = probe.channels();
    sampleRate = probe.sampleRate();
    bits = probe.bits();
    bitRate = probe.bitRate();
    durationMs = probe.durationMs();
  }

  s.m_propertyLines[0] = Tonvane::tr("  Bit Rate               ") + QString::number((int64_t(bitRate) + 500) / 1000) + Tonvane::tr(" kbps");
  s.m_propertyLines[1] = Tonvane::tr("  Channels            ") + QString::number(channels);
  s.m_propertyLines[2] = Tonvane::tr("  Sample Rate       ") + QString::number(sampleRate) + Tonvane::tr(" Hz");
  // The prober has spoken for a file it could not read or found damaged. Anything else it
  // cannot take (no audio track first, a codec other than AAC LC and ALAC, ADIF without a
  // bit rate) is not refused without a word either.
  auto unsupported = [&s, type] {
    if (type != AACFile::kTypeUnreadable && type != AACFile::kTypeDamaged)
      s.m_prompt.Message(Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + s.m_fileName +
                             Tonvane::tr(" has unsupported by the program a format of sound data."),
                         PromptIcon::Error);
    return 0;
  };
  if (durationMs == 0) return unsupported();

  if (type == AACFile::kTypeAac) {
    s.m_propertyLines[3] = mpegVersion == 0 ? Tonvane::tr("  Audio Format      MPEG-4 AAC LC") : Tonvane::tr("  Audio Format      MPEG-2 AAC");
    s.m_sourceKind = kKindAac;
    bits = 16;  // the decoder's default output
  } else if (type == AACFile::kTypeAlac) {
    s.m_propertyLines[3] = Tonvane::tr("  Audio Format      MPEG-4 ALAC");
    s.m_sourceKind = kKindAlac;
  } else {
    return unsupported();
  }
  s.m_channels = channels;
  s.m_sampleRate = sampleRate;
  s.m_bits = bits;
  s.m_bitRate = bitRate;
  s.m_durationMs = durationMs;
  s.m_scaleLabel = Tonvane::tr("100% = 89 dB");

  CloseWorkFile(s);
  const QString work = g_workPath;
  if (!s.m_noWorker && !CreateEmptyWorkFile(work, g_sourcePath)) {
    s.m_prompt.Message(CannotBeCreatedText(work), PromptIcon::Error);
    return 0;
  }
  s.m_isMp4Container = isMp4;
  if (channels > 2) {
    if (!s.m_noWorker) DeleteWorkFile(work);
    s.m_prompt.Message(Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + s.m_fileName +
                           Tonvane::tr(" has unsupported by the program a format of sound data.") +
                           Tonvane::tr(" The file has an amount of channels more than 2."),
                       PromptIcon::Error);
    return 0;
  }
  if (s.m_noWorker) return 1;

  auto job = std::make_shared<DecodeJob>();
  job->kind = s.m_sourceKind;
  job->source = g_sourcePath;
  job->prompt = &s.m_prompt;
  auto sink = std::make_shared<WorkFileWriter>(work, g_sourcePath);
  const bool raw = !isMp4;
  // What only the decoding tells comes into the session on the window's thread.
  auto onMain = [job, raw](Session& s) {
    if (!job->Began()) return;
    s.m_bits = job->format.bits;
    s.m_formatTag = job->format.formatTag;
    if (s.m_channels == 0) {
      // ADIF: the count comes with the first frame.
      s.m_channels = job->format.channels;
      s.m_propertyLines[1] = Tonvane::tr("  Channels            ") + QString::number(job->format.channels);
    }
    if (raw && s.m_durationMs == 0 && job->format.sampleRate > 0) {
      const double seconds =
          double(job->bytes) / (double(job->format.sampleRate) * (job->format.bits / 8) * job->format.channels);
      s.m_durationMs = uint32_t(seconds * 1000.0);
    }
  };
  return StartWorkerOrReport(s, [job, sink] { return DecodeMp4OrAac(*job, *sink) == DecodeStatus::Ok ? 0 : 1; },
                             onMain)
             ? 1
             : 0;
}

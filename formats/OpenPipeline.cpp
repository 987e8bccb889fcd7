#include "formats/OpenPipeline.h"

#include <QFileInfo>

#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/ApeSource.h"
#include "formats/FlacSource.h"
#include "formats/Mp4Source.h"
#include "formats/OggSource.h"
#include "formats/WavReader.h"
#include "formats/WorkFile.h"
#include "formats/mpeg/Mp3Open.h"

int KindOfName(const QString& name) {
  const QString n = name.toLower();
  auto ends = [&](std::initializer_list<const char*> list) {
    for (const char* s : list)
      if (n.endsWith(QLatin1String(s))) return true;
    return false;
  };
  if (ends({".mp3", ".mpga"})) return kKindMp3;
  if (ends({".wav", ".wave"})) return kKindWav;
  if (ends({".aac", ".m4a", ".m4b", ".m4p", ".m4r", ".mp4"})) return kKindAac;
  if (ends({".ogg"})) return kKindOgg;
  if (ends({".ape"})) return kKindApe;
  if (ends({".flac", ".fla"})) return kKindFlac;
  return -1;
}

QString SizeText(uint64_t size) {
  double v = double(size) / 1024.0;
  if (v <= 1.0) return QString::number(qulonglong(size)) + TR(" bytes");
  int level = 1;
  while (level < 4 && v / 1024.0 > 1.0) {
    v /= 1024.0;
    ++level;
  }
  if (level > 3) return {};
  QString num = (v == double(qint64(v))) ? QString::asprintf("%4.0f", v) : QString::asprintf("%4.2f", v);
  static const char* units[] = {"", " kB", " MB", " GB"};
  return num.trimmed() + TR(units[level]);
}

int OpenFileHeadless(Session& s, const QString& path) {
  int kind = KindOfName(path);
  if (kind < 0) return 0;
  s.m_fileName = s.m_fileNameShown = s.m_fileNameCopy = path;
  s.m_sourceKind = kind;
  s.m_isMpeg = kind == kKindMp3 ? 1 : 0;
  s.m_isMp4Container = 0;
  s.m_driveType = DriveTypeOf(path);
  g_sourcePath = path;
  g_workPath = WorkPathFor(path, s.m_driveType);
  int ok = 0;
  switch (kind) {
    case kKindWav: ok = OpenWav(s); break;
    case kKindMp3: ok = OpenMp3(s); break;
    case kKindFlac: ok = OpenFlac(s); break;
    case kKindOgg: ok = OpenOgg(s); break;
    case kKindApe: ok = OpenApe(s); break;
    default: ok = OpenMp4(s); break;
  }
  if (ok != 1) ClearSessionPaths();
  return ok == 1 ? 1 : 0;
}

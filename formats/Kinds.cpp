#include "formats/Kinds.h"

#include <QList>
#include <QPair>

#include "app/Session.h"
#include "app/Text.h"

const std::vector<KindInfo>& Kinds() {
  static const std::vector<KindInfo> kinds = {
      {kKindWav, "wav", "WAV", {".wav", ".wave"},
       QT_TRANSLATE_NOOP("Tonvane", "Wave Files (*.wav; *.wave)"), "*.wav;*.wave",
       QT_TRANSLATE_NOOP("Tonvane", "Wav Batch Processor - Tonvane 1.0"), "List_2",
       QT_TRANSLATE_NOOP("Tonvane", " does not contain any Wav files."), kTimerBatchWav, 2},
      {kKindMp3, "mp3", "MP3", {".mp3", ".mpga"},
       QT_TRANSLATE_NOOP("Tonvane", "Mp3 Files (*.mp3; *.mpga)"), "*.mp3;*.mpga",
       QT_TRANSLATE_NOOP("Tonvane", "Mp3 Batch Processor - Tonvane 1.0"), "List_1",
       QT_TRANSLATE_NOOP("Tonvane", " does not contain any Mp3 files."), kTimerBatchMp3, 0},
      {kKindFlac, "flac", "FLAC", {".flac", ".fla"},
       QT_TRANSLATE_NOOP("Tonvane", "FLAC Files (*.flac; *.fla)"), "*.flac;*.fla",
       QT_TRANSLATE_NOOP("Tonvane", "FLAC Batch Processor - Tonvane 1.0"), "List_2",
       QT_TRANSLATE_NOOP("Tonvane", " does not contain any FLAC files."), kTimerBatchFlac, 3},
      {kKindOgg, "ogg", "Ogg Vorbis", {".ogg"},
       QT_TRANSLATE_NOOP("Tonvane", "Ogg Files (*.ogg)"), "*.ogg",
       QT_TRANSLATE_NOOP("Tonvane", "Ogg Batch Processor - Tonvane 1.0"), "List_3",
       QT_TRANSLATE_NOOP("Tonvane", " does not contain any Ogg files."), kTimerBatchOgg, 4},
      {kKindApe, "ape", "APE", {".ape"},
       QT_TRANSLATE_NOOP("Tonvane", "APE Files (*.ape)"), "*.ape",
       QT_TRANSLATE_NOOP("Tonvane", "APE Batch Processor - Tonvane 1.0"), "List_2",
       QT_TRANSLATE_NOOP("Tonvane", " does not contain any APE files."), kTimerBatchApe, 5},
      {kKindAac, "mp4", "AAC", {".aac", ".mp4", ".m4a", ".m4b", ".m4p", ".m4r"},
       QT_TRANSLATE_NOOP("Tonvane", "AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)"),
       "*.m4a;*.m4b;*.mp4;*.m4p;*.m4r;*.aac",
       QT_TRANSLATE_NOOP("Tonvane", "Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0"), "List_4",
       QT_TRANSLATE_NOOP("Tonvane", " does not contain any Mp4 files."), kTimerBatchMp4, 1},
      {kKindAlac, "", "ALAC", {".aac", ".mp4", ".m4a", ".m4b", ".m4p", ".m4r"},
       QT_TRANSLATE_NOOP("Tonvane", "AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)"),
       "*.m4a;*.m4b;*.mp4;*.m4p;*.m4r;*.aac",
       QT_TRANSLATE_NOOP("Tonvane", "Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0"), "List_4",
       QT_TRANSLATE_NOOP("Tonvane", " does not contain any Mp4 files."), kTimerBatchMp4, -1},
  };
  return kinds;
}

const KindInfo* KindInfoOf(int kind) {
  const auto& k = Kinds();
  return kind >= 0 && kind < int(k.size()) ? &k[size_t(kind)] : nullptr;
}

int KindOfCliName(const QString& name) {
  const QString n = name.toLower();
  if (n == QLatin1String("aac") || n == QLatin1String("m4a")) return kKindAac;
  for (const KindInfo& k : Kinds())
    if (*k.cliName && n == QLatin1String(k.cliName)) return k.kind;
  return -1;
}

bool HasSuffixOfKind(int kind, const QString& path) {
  const KindInfo* k = KindInfoOf(kind);
  if (!k) return false;
  for (const QString& suffix : k->suffixes)
    if (path.endsWith(suffix, Qt::CaseInsensitive)) return true;
  return false;
}

bool IsPlaylistName(const QString& path) {
  return path.endsWith(QLatin1String(".m3u"), Qt::CaseInsensitive) ||
         path.endsWith(QLatin1String(".m3u8"), Qt::CaseInsensitive);
}

QList<QPair<QString, QString>> BatchFileFilters() {
  QList<QPair<QString, QString>> out{{Tonvane::tr("All Files (*.*)"), QStringLiteral("*.*")}};
  // The dialog's order: WAV, MP3, FLAC, Ogg, APE, MP4.
  for (int kind : {kKindWav, kKindMp3, kKindFlac, kKindOgg, kKindApe, kKindAac}) {
    const KindInfo* k = KindInfoOf(kind);
    out.append({Tonvane::tr(k->dialogCaption), QString::fromLatin1(k->dialogPattern)});
  }
  return out;
}

int BatchFirstFilter(int kind) {
  switch (kind) {
    case kKindWav: return 1;
    case kKindMp3: return 2;
    case kKindFlac: return 3;
    case kKindOgg: return 4;
    case kKindApe: return 5;
    case kKindAac:
    case kKindAlac: return 6;
    default: return 0;
  }
}

QPair<QString, QString> PlaylistFilter() {
  return {Tonvane::tr("M3U Playlist (*.m3u;*.m3u8)"), QStringLiteral("*.m3u;*.m3u8")};
}

int KindOfTypeIndex(int index) {
  for (const KindInfo& k : Kinds())
    if (k.typeIndex == index) return k.kind;
  return kKindMp3;
}

int TypeIndexOfKind(int kind) {
  const KindInfo* k = KindInfoOf(kind == kKindAlac ? kKindAac : kind);
  return k ? k->typeIndex : 0;
}

#include "batch/BatchAdd.h"

#include <dirent.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStringDecoder>
#include <QUrl>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <deque>

#include "app/FileErrors.h"
#include "app/Session.h"
#include "app/Text.h"
#include "batch/BatchControl.h"
#include "batch/BatchList.h"
#include "batch/NaturalOrder.h"
#include "batch/PropertyScan.h"
#include "formats/Kinds.h"
#include "formats/OpenPipeline.h"
#include "log/TestLog.h"

bool BatchNameTest(int batchKind, const QString& path) {
  switch (batchKind) {
    case kAnyKind: return KindOfName(path) >= 0;
    case kKindMp3: return HasSuffixOfKind(kKindMp3, path) || (IsWavName(path) && WavCarriesMpeg(path));
    case kKindAlac: return HasSuffixOfKind(kKindAac, path);
    default: return HasSuffixOfKind(batchKind, path);
  }
}

bool IsLeftoverName(const QString& fileName) {
  static const QSet<QString> names = {QStringLiteral("temp.mp3"), QStringLiteral("temp.wav"),
                                      QStringLiteral("temp.flac"), QStringLiteral("temp.ogg"),
                                      QStringLiteral("temp.ape")};
  return names.contains(fileName);
}

QStringList PlaylistEntries(const QByteArray& bytes, bool m3u8, const QString& playlistFolder) {
  QByteArray body = bytes;
  if (body.startsWith("\xEF\xBB\xBF")) body.remove(0, 3);
  QString text;
  if (m3u8) {
    text = QString::fromUtf8(body);
  } else {
    QStringDecoder utf8(QStringDecoder::Utf8);
    text = utf8.decode(body);
    if (utf8.hasError()) text = QString::fromLatin1(body);
  }
  QStringList out;
  const QDir folder(playlistFolder);
  for (QString line : text.split('\n')) {
    line = line.trimmed();
    if (line.isEmpty() || line.startsWith('#')) continue;
    if (line.startsWith(QLatin1String("file:"), Qt::CaseInsensitive)) {
      line = QUrl(line).toLocalFile();
      if (line.isEmpty()) continue;
    } else if (line.contains(QLatin1String("://")) || line.startsWith(QLatin1String("http:"), Qt::CaseInsensitive)) {
      continue;
    }
    line.replace('\\', '/');
    out << QDir::cleanPath(line.startsWith('/') ? line : folder.filePath(line));
  }
  return out;
}

BatchAdder::BatchAdder(BatchList& list, Session& s, BatchControl* control)
    : m_list(list), m_s(s), m_control(control) {}

BatchAdder::~BatchAdder() {
  if (m_log) m_log->CloseLog();
}

bool BatchAdder::Go() {
  if (m_cancelled) return false;
  if (m_control && !m_control->Poll()) m_cancelled = true;
  return !m_cancelled;
}

void BatchAdder::Report(const QString& path, const QString& text, const QString& family, bool folder) {
  m_problems.push_back({path, text, m_list.FileCount(), folder});
  m_s.m_prompt.Message(text, PromptIcon::Information, family);
}

int BatchAdder::Scan(const QString& path) {
  if (processing) processing(path);
  BatchFileInfo info;
  QString family;
  auto pump = [this] { return Go(); };
  const ScanOutcome outcome = ScanFile(path, m_list.BatchKind(), info, pump, &family);
  if (outcome != ScanOutcome::Row) return 0;
  if (info.bad && m_reportScanErrors) m_s.m_prompt.Message(info.error, PromptIcon::Information, family);

  // What the log already knows, from one open for the whole add.
  RowLevels earlier;
  bool found = false;
  if (!info.bad && m_s.m_useDatabase && m_s.m_logAvailable) {
    if (!m_logTried) {
      m_logTried = true;
      m_log = std::make_unique<TestLog>(m_s);
      if (!m_log->OpenLog()) m_log.reset();
    }
    LevelResult values;
    if (m_log && m_log->LookUpForList(path, values))
      found = LevelsOfLogRow(values, int(info.kind), m_list.ShowDb(), int(info.channels), earlier);
  }
  if (found) ++m_fromLog;
  return m_list.AddRecord(std::move(info), found ? &earlier : nullptr) >= 0 ? 1 : 0;
}

int BatchAdder::AddFile(const QString& path, bool named) {
  if (!Go()) return 0;
  const QString full = QFileInfo(path).absoluteFilePath();
  if (!BatchNameTest(m_list.BatchKind(), full)) {
    if (named) {
      const QString text = QFileInfo::exists(full)
                               ? Tonvane::tr("Sorry, but the type of this file is not supported.")
                               : Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + full +
                                     Tonvane::tr(" cannot be found.");
      Report(full, text);
    }
    return 0;
  }
  if (m_list.Contains(full)) return 0;
  return Scan(full);
}

namespace {

struct DirEntries {
  QStringList files, folders;
  int error = 0;
};

DirEntries ReadFolder(const QString& folder) {
  DirEntries out;
  const QByteArray name = QFile::encodeName(folder);
  DIR* d = ::opendir(name.constData());
  if (!d) {
    out.error = errno;
    return out;
  }
  while (dirent* e = ::readdir(d)) {
    if (!std::strcmp(e->d_name, ".") || !std::strcmp(e->d_name, "..")) continue;
    const QString child = folder + '/' + QFile::decodeName(e->d_name);
    bool isDir = e->d_type == DT_DIR;
    if (e->d_type == DT_LNK || e->d_type == DT_UNKNOWN) {
      struct stat st;
      isDir = ::stat(QFile::encodeName(child).constData(), &st) == 0 && S_ISDIR(st.st_mode);
    }
    (isDir ? out.folders : out.files) << child;
  }
  ::closedir(d);
  std::sort(out.files.begin(), out.files.end(), NaturalLess);
  std::sort(out.folders.begin(), out.folders.end(), NaturalLess);
  return out;
}

}  // namespace

int BatchAdder::AddFolder(const QString& folder, bool recursive) {
  int added = 0;
  QString root = QFileInfo(folder).absoluteFilePath();
  std::deque<QString> queue{root};
  QSet<QPair<quint64, quint64>> seen;
  while (!queue.empty() && Go()) {
    const QString dir = queue.front();
    queue.pop_front();
    struct stat st;
    if (::stat(QFile::encodeName(dir).constData(), &st) == 0) {
      // A folder reached twice (a link back up the tree) is walked once.
      const QPair<quint64, quint64> id{quint64(st.st_dev), quint64(st.st_ino)};
      if (seen.contains(id)) continue;
      seen.insert(id);
    }
    if (processing) processing(dir);
    const DirEntries entries = ReadFolder(dir);
    if (entries.error) {
      Report(dir,
             Tonvane::tr("Sorry, but the folder ") + dir + Tonvane::tr(" cannot be read: ") +
                 QString::fromLocal8Bit(std::strerror(entries.error)) + ".",
             QStringLiteral("notAgainFolder"), true);
      continue;
    }
    for (const QString& file : entries.files) {
      if (!Go()) break;
      if (IsLeftoverName(QFileInfo(file).fileName())) continue;
      if (!BatchNameTest(m_list.BatchKind(), file) || m_list.Contains(file)) continue;
      added += Scan(file);
    }
    if (recursive)
      for (const QString& sub : entries.folders) queue.push_back(sub);
  }
  return added;
}

int BatchAdder::AddPlaylist(const QString& playlist) {
  if (!Go()) return 0;
  const QString full = QFileInfo(playlist).absoluteFilePath();
  QFile f(full);
  if (!f.open(QIODevice::ReadOnly)) {
    Report(full, FileErrorText(Tonvane::tr(" cannot be opened"), full, QString(),
                               ErrorCodeFromErrno(QFileInfo::exists(full) ? EACCES : ENOENT, full), true));
    return 0;
  }
  const QByteArray bytes = f.readAll();
  f.close();
  const bool m3u8 = full.endsWith(QLatin1String(".m3u8"), Qt::CaseInsensitive);
  int added = 0;
  for (const QString& entry : PlaylistEntries(bytes, m3u8, QFileInfo(full).path())) {
    if (!Go()) break;
    if (!BatchNameTest(m_list.BatchKind(), entry)) continue;
    if (!QFileInfo(entry).isFile()) {
      Report(entry, Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + entry + Tonvane::tr(" cannot be found."));
      continue;
    }
    if (m_list.Contains(entry)) continue;
    added += Scan(entry);
  }
  return added;
}

int BatchAdder::AddPath(const QString& path, bool recursive) {
  const QFileInfo fi(path);
  if (fi.isDir()) return AddFolder(path, recursive);
  if (IsPlaylistName(path) && fi.isFile()) return AddPlaylist(path);
  return AddFile(path, true);
}

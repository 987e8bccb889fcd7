#include "formats/OpenPipeline.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "app/FileErrors.h"
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

namespace {

bool EndsWithAny(const QString& name, std::initializer_list<const char*> suffixes) {
  for (const char* s : suffixes)
    if (name.endsWith(QLatin1String(s), Qt::CaseInsensitive)) return true;
  return false;
}

// Marks the session as inside an open for as long as the scope lives, so that a request
// for the file dialog made from inside waits for the open to finish.
class OpenScope {
 public:
  explicit OpenScope(Session& s) : m_s(s) { ++m_s.m_openDepth; }
  ~OpenScope() { --m_s.m_openDepth; }
  OpenScope(const OpenScope&) = delete;
  OpenScope& operator=(const OpenScope&) = delete;

 private:
  Session& m_s;
};

// Clears the owner's write bit problem of a source: the one change the program makes to it.
void ClearReadOnly(const QString& path) {
  const QByteArray native = QFile::encodeName(path);
  struct stat st;
  if (::stat(native.constData(), &st) == 0 && S_ISREG(st.st_mode) && !(st.st_mode & S_IWUSR))
    ::chmod(native.constData(), (st.st_mode & 07777) | S_IWUSR);
}

int KindForOpen(Session& s, const QString& name) {
  s.m_isMpeg = 0;
  if (IsMp3Name(name)) {
    s.m_isMpeg = 1;
    return kKindMp3;
  }
  if (IsWavName(name)) return kKindWav;
  if (IsMp4Name(name)) return kKindAac;
  if (IsOggName(name)) return kKindOgg;
  if (IsApeName(name)) return kKindApe;
  // The suffix test has let only known suffixes through.
  return kKindFlac;
}

void GiveUp(Session& s) {
  s.m_opening = 0;
  ClearFileDisplay(s);
  ClearSessionPaths();
}

// The scale label after an open: kinds whose reference is always 89 dB keep the label's
// visibility; a WAV handed to the MPEG reader shows it; the PCM kinds show it by width in
// the average test on the percent scale only.
void SetScaleLabel(Session& s) {
  const int kind = s.m_sourceKind;
  if (kind == kKindMp3 || kind == kKindOgg || kind == kKindAac || kind == kKindAlac) {
    s.m_scaleLabel = ScaleCaptionForBits(16);
    if (kind == kKindMp3 && !s.m_isMpeg) s.m_scaleLabelVisible = 1;
    return;
  }
  if (s.m_testMode == 1 && !s.m_showDb) {
    s.m_scaleLabel = ScaleCaptionForBits(s.m_bits);
    s.m_scaleLabelVisible = 1;
  } else {
    s.m_scaleLabelVisible = 0;
  }
}

int CallReader(Session& s) {
  switch (s.m_sourceKind) {
    case kKindWav: return OpenWav(s);
    case kKindMp3: return OpenMp3(s);
    case kKindFlac: return OpenFlac(s);
    case kKindOgg: return OpenOgg(s);
    case kKindApe: return OpenApe(s);
    default: return OpenMp4(s);
  }
}

// The open after the name is chosen. `ask` is 1 for the Open command (its refusals are
// questions) and 0 for a name that comes from elsewhere.
int OpenPath(Session& s, const QString& path, int ask, int savedBits) {
  s.m_isMp4Container = 0;
  s.m_previousFileName = s.m_fileName;
  s.m_fileName = s.m_fileNameShown = s.m_fileNameCopy = path;

  if (CheckFileName(s, ask) != 0) {
    if (!ask) s.m_bits = savedBits;
    s.m_opening = 0;
    return 0;
  }
  s.m_sourceKind = KindForOpen(s, path);

  CloseWorkFile(s);
  // Nothing of the previous file's data chunk may reach the scanner of this one.
  s.m_dataSize = 0;
  s.m_dataOffset = 0;
  s.m_formatTag = 0;
  // The previous work file goes, unless it was the previous source read in place.
  if (!g_workPath.isEmpty() && g_workPath != g_sourcePath) DeleteWorkFile(g_workPath);
  g_workPath.clear();
  ClearReadOnly(path);

  s.m_driveType = path.startsWith('/') ? DriveTypeOf(path) : 0;
  if (s.m_driveType != kDriveCdRom) s.m_fileNameShown = WorkPathFor(s.m_fileNameShown, s.m_driveType);
  g_workPath = s.m_fileNameShown.contains('/') ? s.m_fileNameShown
                                               : WorkPathFor(s.m_fileNameCopy, s.m_driveType);
  if (s.m_driveType != kDriveCdRom) s.m_fileNameShown = g_workPath = WritableWorkPath(g_workPath);
  g_sourcePath = path;

  if (s.m_sourceKind != kKindMp3) {
    const QByteArray native = QFile::encodeName(path);
    g_workFile = ::open(native.constData(), O_RDONLY | O_CLOEXEC);
    if (g_workFile < 0) {
      const int err = errno;
      ReportFileError(s, Tonvane::tr(" cannot be opened"), path, QString(), ErrorCodeFromErrno(err, path), true);
      GiveUp(s);
      return 0;
    }
    ShowFileSize(s);
    if (s.m_sourceKind != kKindWav) {
      if (s.m_fileSize == 0 && s.m_fileSizeHigh == 0) {
        s.m_prompt.Message(Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path +
                               Tonvane::tr(" is empty and does not contain any sound data."),
                           PromptIcon::Error);
        ::close(g_workFile);
        g_workFile = -1;
        GiveUp(s);
        return 0;
      }
      // The decoders open the source themselves; the size stays known.
      ::close(g_workFile);
      g_workFile = -1;
    }
  }

  s.m_fileNotOpened = 0;
  if (CallReader(s) != 1) {
    // The reader's status ("  Test is stopped") stays for the person to read.
    const QString status = s.m_statusText;
    ClearFileDisplay(s);
    s.m_statusText = status;
    if (s.m_sourceKind != kKindFlac) CloseWorkFile(s);
    ClearSessionPaths();
    s.m_opening = 0;
    return 0;
  }

  SetScaleLabel(s);
  s.m_title = QFileInfo(path).fileName() + Tonvane::tr(" - Tonvane 1.0");
  s.m_levelLeft = s.m_levelRight = -1.0f;
  s.m_fileNotOpened = 0;
  s.m_opening = 0;
  return 1;
}

void RunOpenDialog(Session& s) {
  OpenScope scope(s);
  s.m_opening = 1;
  const int savedBits = s.m_bits;
  s.m_bits = 0;
  s.m_canPlay = 1;
  const QString chosen = s.m_fileDialog ? s.m_fileDialog() : QString();
  if (chosen.isEmpty() || chosen == s.m_fileName) {
    // Cancel, or the file that is open already: nothing changes.
    s.m_bits = savedBits;
    s.m_opening = 0;
    return;
  }
  OpenPath(s, chosen, 1, savedBits);
}

void RunPendingDialog(Session& s) {
  if (s.m_openDepth == 0 && s.m_openDialogPending) OnFileOpen(s);
}

}  // namespace

bool IsMp3Name(const QString& name) { return EndsWithAny(name, {".mp3", ".mpga"}); }
bool IsWavName(const QString& name) { return EndsWithAny(name, {".wav", ".wave"}); }
bool IsMp4Name(const QString& name) {
  return EndsWithAny(name, {".aac", ".m4a", ".m4b", ".m4p", ".m4r", ".mp4"});
}
bool IsOggName(const QString& name) { return EndsWithAny(name, {".ogg"}); }
bool IsApeName(const QString& name) { return EndsWithAny(name, {".ape"}); }
bool IsFlacName(const QString& name) { return EndsWithAny(name, {".flac", ".fla"}); }

int KindOfName(const QString& name) {
  if (IsMp3Name(name)) return kKindMp3;
  if (IsWavName(name)) return kKindWav;
  if (IsMp4Name(name)) return kKindAac;
  if (IsOggName(name)) return kKindOgg;
  if (IsApeName(name)) return kKindApe;
  if (IsFlacName(name)) return kKindFlac;
  return -1;
}

int CheckFileName(Session& s, int ask) {
  const QString& name = s.m_fileName;
  const qsizetype dot = name.lastIndexOf('.');
  const qsizetype tail = name.size() - dot;
  if (dot < 0 || (tail != 4 && tail != 5)) {
    if (ask &&
        s.m_prompt.Ask(Tonvane::tr("Sorry, but the file name is incorrect. Please, select another file.\n"
                          "Do You want to open a dialog of selection a file?"))) {
      OnFileOpen(s);
    }
    return 1;
  }
  if (KindOfName(name) < 0) {
    if (ask) {
      const QString question =
          Tonvane::tr("Sorry, but file name with extension \"") + name.mid(dot + 1) + Tonvane::tr("\", ") +
          Tonvane::tr(" is not supported by the program. Please, select another file.\n"
             "Do You want to open a dialog of selection a file?");
      if (s.m_prompt.Ask(question))
        OnFileOpen(s);
      else
        s.m_canPlay = 0;
    }
    return 1;
  }
  return 0;
}

QString SizeText(uint64_t size) {
  double v = double(size) / 1024.0;
  if (v <= 1.0) return QString::asprintf("%4d", int(size)).trimmed() + Tonvane::tr(" bytes");
  int level = 1;
  while (v / 1024.0 > 1.0) {
    v /= 1024.0;
    if (++level > 3) return {};
  }
  const QString number =
      (v == double(uint64_t(v)) ? QString::asprintf("%4.0f", v) : QString::asprintf("%4.2f", v)).trimmed();
  switch (level) {
    case 1: return number + Tonvane::tr(" kB");
    case 2: return number + Tonvane::tr(" MB");
    default: return number + Tonvane::tr(" GB");
  }
}

bool ShowFileSize(Session& s) {
  struct stat st;
  if (g_workFile < 0 || ::fstat(g_workFile, &st) != 0) return false;
  const uint64_t size = uint64_t(st.st_size);
  s.m_fileSize = uint32_t(size);
  s.m_fileSizeHigh = uint32_t(size >> 32);
  // The line shows the low half, as the readers use it.
  s.m_propertyLines[4] = Tonvane::tr("  Size                    ") + SizeText(s.m_fileSize);
  return true;
}

void CloseWorkFile(Session& s) {
  if (g_workFile < 0) return;
  ::close(g_workFile);
  g_workFile = -1;
  s.m_fileSize = s.m_fileSizeHigh = 0;
  s.m_dataSize = 0;
  s.m_dataOffset = 0;
}

void ClearFileDisplay(Session& s) {
  s.m_title = tonvane::kAppTitle;
  for (QString& line : s.m_propertyLines) line.clear();
  s.m_levelLeft = s.m_levelRight = -1.0f;
  s.m_formatTag = 0;
  s.m_statusText.clear();
}

void OnFileOpen(Session& s) {
  if (s.m_openDepth > 0) {
    s.m_openDialogPending = 1;
    return;
  }
  do {
    s.m_openDialogPending = 0;
    RunOpenDialog(s);
  } while (s.m_openDialogPending);
}

int OpenFileHeadless(Session& s, const QString& path) {
  // One worker at a time: an open waits for the previous one to end.
  if (g_workerBusy.load()) WaitForWorker(s);
  JoinWorker();
  int ok = 0;
  {
    OpenScope scope(s);
    s.m_opening = 1;
    const int savedBits = s.m_bits;
    s.m_bits = 0;
    s.m_canPlay = 1;
    ok = OpenPath(s, path, 0, savedBits);
  }
  RunPendingDialog(s);
  return ok == 1 ? 1 : 0;
}

QList<QPair<QString, QString>> OpenDialogFilters() {
  return {
      {Tonvane::tr("All Files (*.*)"), QStringLiteral("*.*")},
      {Tonvane::tr("Wave Files (*.wav; *.wave)"), QStringLiteral("*.wav;*.wave")},
      {Tonvane::tr("Mp3 Files (*.mp3; *.mpga)"), QStringLiteral("*.mp3;*.mpga")},
      {Tonvane::tr("FLAC Files (*.flac; *.fla)"), QStringLiteral("*.flac;*.fla")},
      {Tonvane::tr("Ogg Files (*.ogg)"), QStringLiteral("*.ogg")},
      {Tonvane::tr("APE Files (*.ape)"), QStringLiteral("*.ape")},
      {Tonvane::tr("AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)"),
       QStringLiteral("*.m4a;*.m4b;*.mp4;*.m4p;*.m4r;*.aac")},
  };
}

QString OpenDialogTitle() { return Tonvane::tr("Open      "); }

QStringList FillFileList(const QString& folder) {
  QStringList out;
  const QFileInfoList entries =
      QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::System, QDir::Unsorted);
  for (const QFileInfo& fi : entries) {
    const QString name = fi.fileName();
    if (IsMp3Name(name) || IsWavName(name) || IsMp4Name(name) || IsFlacName(name) || IsApeName(name) ||
        IsOggName(name))
      out << name;
  }
  return out;
}

QString UnsupportedFormatQuestion(const QString& path) {
  return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path +
         Tonvane::tr(" has unsupported by the program a format of sound data. Therefore the test is impossible. "
            "Please, select other file.\nDo You want to open a dialog of selection a file?");
}

void RefuseUnsupportedFormat(Session& s) {
  s.m_statusText = Tonvane::tr("  Test is stopped");
  if (s.m_prompt.Ask(UnsupportedFormatQuestion(s.m_fileName))) {
    OnFileOpen(s);  // inside the open: shown once the refused file has been let go
  } else {
    s.m_opening = 0;
    s.m_fileNotOpened = 1;
  }
}

void SetPcmPropertyLines(Session& s, int bits, int channels, int sampleRate) {
  s.m_propertyLines[0] = Tonvane::tr("  Bits on Readout ") + QString::number(bits).rightJustified(3, ' ');
  s.m_propertyLines[1] = Tonvane::tr("  Channels             ") + QString::number(channels);
  s.m_propertyLines[2] = Tonvane::tr("  Frequency          ") + QString::number(sampleRate) + Tonvane::tr(" Hz");
}

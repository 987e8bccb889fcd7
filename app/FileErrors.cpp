#include "app/FileErrors.h"

#include <QDir>
#include <QFileInfo>
#include <cerrno>
#include <cstring>

#include "app/Session.h"
#include "app/Text.h"

int ErrorCodeFromErrno(int err, const QString& path) {
  switch (err) {
    case ENOENT: {
      if (!path.isEmpty()) {
        QFileInfo fi(path);
        if (!fi.absoluteDir().exists()) return kErrPathNotFound;
      }
      return kErrFileNotFound;
    }
    case ENOTDIR: return kErrPathNotFound;
    case EMFILE:
    case ENFILE: return kErrTooManyOpen;
    case EACCES:
    case EPERM:
    case EROFS: return kErrAccessDenied;
    case ENOSPC: return kErrDiskFull;
    case EINVAL:
    case EILSEQ: return kErrInvalidName;
    case ENAMETOOLONG: return kErrNameTooLong;
    default: return err > 0 ? -err : err;
  }
}

static QString TableText(int code) {
  switch (code) {
    case kErrFileNotFound: return Tonvane::tr(" impossible. Because the file does not exist.");
    case kErrPathNotFound: return Tonvane::tr(" impossible. Because the file path does not exist.");
    case kErrTooManyOpen: return Tonvane::tr(". Because too many files are opened.");
    case kErrAccessDenied: return Tonvane::tr(" impossible. Because access to the file is prohibited.");
    case kErrInvalidName:
      return Tonvane::tr(" impossible. Because of the incorrect file name, name of folder or disk name.");
    case kErrNameTooLong: return Tonvane::tr(" impossible. Because the file name or its extension is too long.");
    case kErrCantAccessFile: return Tonvane::tr(" impossible. Because the system cannot get access to the file.");
    default: return {};
  }
}

QString SystemErrorText(int code) {
  QString t = TableText(code);
  if (!t.isEmpty()) return t;
  if (code == kErrDiskFull) return QString::fromLocal8Bit(std::strerror(ENOSPC));
  int err = code < 0 ? -code : code;
  return QString::fromLocal8Bit(std::strerror(err));
}

QString FileErrorText(const QString& action, const QString& file, const QString& tail, int code,
                      bool withFile) {
  QString prefix = Tonvane::tr("Sorry, but ");
  if (!file.isEmpty()) prefix += Tonvane::tr("the file ");
  QString table = TableText(code);
  if (!table.isEmpty()) return prefix + file + action + table + tail;
  QString sys = SystemErrorText(code);
  if (withFile) return prefix + file + action + sys + tail;
  return Tonvane::tr("Sorry, but ") + action + Tonvane::tr(" impossible. ") + sys + tail;
}

void ReportFileError(Session& s, const QString& action, const QString& file, const QString& tail,
                     int code, bool withFile) {
  s.m_prompt.Message(FileErrorText(action, file, tail, code, withFile), PromptIcon::Error,
                     QStringLiteral("FileError:") + action);
}

#pragma once
// One message box for a failed system call. Every reader and the test use it.
#include <QString>

struct Session;

// Windows error numbers the messages are keyed by.
constexpr int kErrFileNotFound = 2;
constexpr int kErrPathNotFound = 3;
constexpr int kErrTooManyOpen = 4;
constexpr int kErrAccessDenied = 5;
constexpr int kErrDiskFull = 112;
constexpr int kErrInvalidName = 123;
constexpr int kErrNameTooLong = 206;
constexpr int kErrCantAccessFile = 1920;

// Maps an errno value (for a call on `path`) to the error number of the message table:
// ENOENT is 3 when the folder itself is missing, else 2. Other values come back as
// -errno, so the system's own text is shown for them.
int ErrorCodeFromErrno(int err, const QString& path = {});

// The system's text for a code from ErrorCodeFromErrno (the table's tail, or strerror).
QString SystemErrorText(int code);

// "Sorry, but " ["the file "] + file + action + text + tail, shown with the caption
// "Tonvane 1.0", an error icon and "Don't show again" (remembered per action for the run).
// `code` is the value ErrorCodeFromErrno gives.
void ReportFileError(Session& s, const QString& action, const QString& file, const QString& tail,
                     int code, bool withFile);

// The text alone, for tests and the CLI.
QString FileErrorText(const QString& action, const QString& file, const QString& tail, int code,
                      bool withFile);

#pragma once
// What the about box says: the program, its licence, where it lives, and the versions of the
// libraries this process runs with (read at run time, so a distribution update shows).
#include <QString>
#include <utility>
#include <vector>

namespace tonvane {
// Home page and contact; the Help menu's home-page command opens the same address.
inline const char* const kHomePage = "https://ostrel.works/tonvane";
inline const char* const kMailAddress = "tonvane@ostrel.works";
// The linked AAC decoder is GPL-2.0-or-later, so the program is too.
inline const char* const kLicenceId = "GPL-2.0-or-later";
}  // namespace tonvane

// Program version as built.
QString ProgramVersion();
// The licence in a sentence, translated.
QString LicenceText();
// Library name and version, in the order Qt, FFmpeg, libFLAC, libvorbis, faad2, SDL2.
std::vector<std::pair<QString, QString>> LibraryVersions();

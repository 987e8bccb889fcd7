#include "app/AboutInfo.h"

#include <FLAC/format.h>
#include <SDL2/SDL_version.h>
#include <neaacdec.h>
#include <vorbis/codec.h>
extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/avutil.h>
}

#include "app/Text.h"

QString ProgramVersion() { return QStringLiteral(TONVANE_VERSION); }

QString LicenceText() {
  return Tonvane::tr("This program is free software under the GNU General Public License, version 2 or later. "
                     "It comes with no warranty.");
}

std::vector<std::pair<QString, QString>> LibraryVersions() {
  std::vector<std::pair<QString, QString>> out;
  out.emplace_back(QStringLiteral("Qt"), QString::fromLatin1(qVersion()));

  const unsigned codec = avcodec_version();
  out.emplace_back(QStringLiteral("FFmpeg"),
                   QStringLiteral("%1 (libavcodec %2.%3.%4)")
                       .arg(QString::fromLatin1(av_version_info()))
                       .arg(AV_VERSION_MAJOR(codec))
                       .arg(AV_VERSION_MINOR(codec))
                       .arg(AV_VERSION_MICRO(codec)));

  out.emplace_back(QStringLiteral("libFLAC"), QString::fromLatin1(FLAC__VERSION_STRING));

  // "Xiph.Org libVorbis I 20200704 (Reducing Environment)": keep what follows the name.
  QString vorbis = QString::fromLatin1(vorbis_version_string());
  const int at = vorbis.indexOf(QLatin1String("libVorbis "));
  if (at >= 0) vorbis = vorbis.mid(at + 10);
  out.emplace_back(QStringLiteral("libvorbis"), vorbis);

  char* faadId = nullptr;
  char* faadCopyright = nullptr;
  NeAACDecGetVersion(&faadId, &faadCopyright);
  out.emplace_back(QStringLiteral("faad2"), faadId ? QString::fromLatin1(faadId) : QString());

  SDL_version sdl{};
  SDL_GetVersion(&sdl);
  out.emplace_back(QStringLiteral("SDL2"), QStringLiteral("%1.%2.%3").arg(sdl.major).arg(sdl.minor).arg(sdl.patch));
  return out;
}

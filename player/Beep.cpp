#include "player/Beep.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "player/SoundSystem.h"

namespace {
const QString kNotifyName = QStringLiteral("notify.wav");
snd::System* g_beepSystem = nullptr;
snd::Sound* g_beepSound = nullptr;
}  // namespace

QString FindNotifySound() {
  QStringList folders = {QDir::currentPath()};
  if (QCoreApplication::instance() != nullptr) {
    const QString app = QCoreApplication::applicationDirPath();
    folders << app << app + QStringLiteral("/../share/tonvane");
  }
#ifdef TONVANE_BUILD_DIR
  folders << QStringLiteral(TONVANE_BUILD_DIR);
#endif
  for (const QString& folder : folders) {
    const QFileInfo fi(QDir(folder).filePath(kNotifyName));
    if (fi.isFile()) return fi.absoluteFilePath();
  }
  return {};
}

void PlayNotify() {
  const QString path = FindNotifySound();
  if (path.isEmpty()) return;
  if (g_beepSystem == nullptr) {
    snd::System_Create(&g_beepSystem);
    g_beepSystem->init(1);
  }
  if (g_beepSound != nullptr) {
    g_beepSound->release();
    g_beepSound = nullptr;
  }
  if (g_beepSystem->createStream(path, snd::MODE_DEFAULT, nullptr, &g_beepSound) != snd::OK) return;
  snd::Channel* channel = nullptr;
  g_beepSystem->playSound(snd::CHANNEL_FREE, g_beepSound, false, &channel);
}

void ReleaseNotify() {
  if (g_beepSound != nullptr) g_beepSound->release();
  g_beepSound = nullptr;
  if (g_beepSystem != nullptr) g_beepSystem->release();
  g_beepSystem = nullptr;
}

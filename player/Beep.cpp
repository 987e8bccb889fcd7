#include "player/Beep.h"

#include <QDir>
#include <QFileInfo>

#include "app/DataPaths.h"
#include "player/SoundSystem.h"

namespace {
const QString kNotifyName = QStringLiteral("notify.wav");
snd::System* g_beepSystem = nullptr;
snd::Sound* g_beepSound = nullptr;
}  // namespace

QString FindNotifySound() {
  const QFileInfo own(QDir::current().filePath(kNotifyName));
  if (own.isFile()) return own.absoluteFilePath();
  return tonvane::FindDataFile(kNotifyName);
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

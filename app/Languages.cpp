#include "app/Languages.h"

#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTranslator>

#include "app/DataPaths.h"
#include "app/Settings.h"
#include "app/Text.h"

const std::array<LanguageInfo, 17>& Languages() {
  static const std::array<LanguageInfo, 17> table = {{
      {32933, QT_TRANSLATE_NOOP("Tonvane", "Russian"), "ru", "ru", 204, 217, nullptr},
      {32934, QT_TRANSLATE_NOOP("Tonvane", "English"), "en", "en", 0, 131, nullptr},
      {32959, QT_TRANSLATE_NOOP("Tonvane", "German"), "de", "de", 0, 241, nullptr},
      {32962, QT_TRANSLATE_NOOP("Tonvane", "Spanish"), "es", "es", 0, 743, nullptr},
      {32970, QT_TRANSLATE_NOOP("Tonvane", "French"), "fr", "fr", 0, 14, nullptr},
      {32790, QT_TRANSLATE_NOOP("Tonvane", "Italian"), "it", "it", 0, 12, nullptr},
      {33009, QT_TRANSLATE_NOOP("Tonvane", "Dutch"), "nl", "nl", 0, 131, nullptr},
      {33012, QT_TRANSLATE_NOOP("Tonvane", "Portuguese"), "pt", "pt_BR", 0, 726, nullptr},
      {33015, QT_TRANSLATE_NOOP("Tonvane", "Norwegian"), "no", "nb", 0, 131, nullptr},
      {32797, QT_TRANSLATE_NOOP("Tonvane", "Danish"), "da", "da", 0, 131, nullptr},
      {32814, QT_TRANSLATE_NOOP("Tonvane", "Turkish"), "tr", "tr", 162, 720, nullptr},
      {32820, QT_TRANSLATE_NOOP("Tonvane", "Polish"), "pl", "pl", 238, 719, nullptr},
      {32823, QT_TRANSLATE_NOOP("Tonvane", "Croatian"), "cr", "hr", 238, 717, nullptr},
      {32822, QT_TRANSLATE_NOOP("Tonvane", "Chinese"), "cn", "zh_CN", 134, 718, "Noto Sans CJK SC"},
      {32824, QT_TRANSLATE_NOOP("Tonvane", "Korean"), "ko", "ko", 129, 716, "Noto Sans CJK KR"},
      {32825, QT_TRANSLATE_NOOP("Tonvane", "Czech"), "cs", "cs", 238, 715, nullptr},
      {33081, QT_TRANSLATE_NOOP("Tonvane", "Slovenian"), "sl", "sl", 238, 714, nullptr},
  }};
  return table;
}

const LanguageInfo* FindLanguage(const QString& code) {
  for (const LanguageInfo& l : Languages())
    if (code == QLatin1String(l.code)) return &l;
  return nullptr;
}

const LanguageInfo& LanguageOrEnglish(const QString& code) {
  const LanguageInfo* l = FindLanguage(code);
  return l ? *l : Languages()[1];
}

QString StoredLanguageCode() { return Settings::GetString(QStringLiteral("Language")); }

void StoreLanguageCode(const QString& code) { Settings::SetString(QStringLiteral("Language"), code); }

QString RestartText() {
  return Tonvane::tr("Program should be restarted to set another interface language.");
}

QStringList DataFolders(const QString& kind) {
  QStringList out;
  for (const QString& dir : tonvane::DataDirs()) out << QDir(dir).filePath(kind);
  return out;
}

QString HelpIndexFor(const QString& code, const QStringList& folders) {
  QStringList candidates;
  if (!code.isEmpty()) candidates << code + QStringLiteral("/index.html");
  candidates << QStringLiteral("index.html");
  for (const QString& name : candidates)
    for (const QString& dir : folders) {
      const QString path = QDir(dir).filePath(name);
      if (QFileInfo(path).isFile()) return QFileInfo(path).absoluteFilePath();
    }
  return {};
}

namespace {
QString g_interfaceLanguage;
}

QString CurrentInterfaceLanguage() { return g_interfaceLanguage; }

LanguageLoader::LanguageLoader() = default;

LanguageLoader::~LanguageLoader() { Unload(); }

void LanguageLoader::Load(const QString& code, const QStringList& programFolders, const QString& qtFolder) {
  Unload();
  const LanguageInfo* lang = FindLanguage(code);
  if (!lang || code == QLatin1String("en")) return;
  g_interfaceLanguage = code;

  m_program = std::make_unique<QTranslator>();
  for (const QString& dir : programFolders) {
    if (m_program->load(QStringLiteral("tonvane_") + code, dir)) {
      m_programLoaded = QCoreApplication::installTranslator(m_program.get());
      break;
    }
  }

  // Qt's catalogue for the mapped locale ("qt_" pulls in qtbase where Debian splits it).
  // Norwegian Bokmål has none; the buttons then stay English.
  const QString qtDir = qtFolder.isEmpty() ? QLibraryInfo::path(QLibraryInfo::TranslationsPath) : qtFolder;
  m_qt = std::make_unique<QTranslator>();
  const QString locale = QString::fromLatin1(lang->qtLocale);
  if (m_qt->load(QStringLiteral("qt_") + locale, qtDir) || m_qt->load(QStringLiteral("qtbase_") + locale, qtDir))
    m_qtLoaded = QCoreApplication::installTranslator(m_qt.get());
}

void LanguageLoader::Unload() {
  if (m_program && m_programLoaded) QCoreApplication::removeTranslator(m_program.get());
  if (m_qt && m_qtLoaded) QCoreApplication::removeTranslator(m_qt.get());
  m_program.reset();
  m_qt.reset();
  m_programLoaded = m_qtLoaded = false;
  g_interfaceLanguage.clear();
}

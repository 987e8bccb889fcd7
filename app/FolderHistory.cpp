#include "app/FolderHistory.h"

#include "app/Settings.h"

namespace {
const QString kSection = QStringLiteral("FolderHistory");
const QString kPrefix = QStringLiteral("Folder");
}  // namespace

void FolderHistory::Load() {
  m_items.clear();
  for (int n = 0; n < m_max; ++n) {
    const QString v = Settings::GetString(kPrefix + QString::number(n), {}, kSection);
    if (v.isEmpty()) break;
    m_items << v;
  }
  m_current = Settings::GetString(kPrefix, {}, kSection);
}

void FolderHistory::AddString(const QString& text) {
  const QString t = text.trimmed();
  if (t.isEmpty()) return;
  m_items.removeAll(t);
  m_items.prepend(t);
  while (m_items.size() > m_max) m_items.removeLast();
  m_current = t;
}

void FolderHistory::Save() {
  int n = 0;
  for (; n < m_items.size(); ++n) Settings::SetString(kPrefix + QString::number(n), m_items[n], kSection);
  // A shorter list than before leaves no stale values behind.
  for (; n < 1000; ++n) {
    const QString key = kPrefix + QString::number(n);
    if (Settings::GetString(key, {}, kSection).isEmpty()) break;
    Settings::SetString(key, {}, kSection);
  }
  Settings::SetString(kPrefix, m_current, kSection);
}

#pragma once
// The recent folders of the file and folder dialogs, newest first, in the settings section
// "FolderHistory": values "Folder0", "Folder1", ... and "Folder", the current one. The
// dialogs offer them as their history.
#include <QString>
#include <QStringList>

class FolderHistory {
 public:
  explicit FolderHistory(int maxItems = 100) : m_max(maxItems) {}

  // Reads the items up to the first empty value or the maximum, and the current text.
  void Load();
  // Trimmed, to the head; an older equal item goes; the list keeps at most the maximum.
  void AddString(const QString& text);
  // Writes the items and the current text, and deletes numbered values left from a longer list.
  void Save();

  const QStringList& Items() const { return m_items; }
  const QString& Current() const { return m_current; }
  void SetCurrent(const QString& text) { m_current = text; }

 private:
  int m_max;
  QStringList m_items;
  QString m_current;
};

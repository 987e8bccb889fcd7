#include "batch/BatchWindowRules.h"

#include <QDir>
#include <QFileInfo>
#include <cmath>

#include "app/Settings.h"
#include "app/Text.h"
#include "batch/BatchAdd.h"
#include "batch/BatchList.h"
#include "batch/BatchRun.h"
#include "formats/Kinds.h"

BatchEnablingState BatchEnabling(const BatchEnablingInput& in) {
  BatchEnablingState out;
  const bool any = in.fileCount > 0;
  out.listCommands = any;
  out.removes = any && !in.addBusy;
  out.playPause = any && in.previewEnabled;
  out.stop = in.previewActive;
  out.stepping = any && in.previewEnabled;
  out.useDatabase = in.logAvailable;
  out.database = in.logAvailable;
  return out;
}

namespace {
QString SectionOf(int batchKind) {
  const KindInfo* k = KindInfoOf(batchKind);
  return k ? QString::fromLatin1(k->columnSection) : QStringLiteral("List_2");
}
}  // namespace

std::vector<BatchColumnState> LoadColumnLayout(int batchKind) {
  const QString section = SectionOf(batchKind);
  const std::vector<BatchColumnSpec>& specs = BatchColumns(batchKind);
  std::vector<BatchColumnState> out(specs.size());
  for (size_t n = 0; n < specs.size(); ++n) {
    const QString i = QString::number(n);
    out[n].visible = Settings::GetInt("Visible_" + i, 1, section) != 0;
    out[n].position = Settings::GetInt("Position_" + i, -1, section);
    out[n].width = Settings::GetInt("Width_" + i, specs[n].width, section);
    if (out[n].width <= 0) out[n].width = specs[n].width;
  }
  return out;
}

void SaveColumnLayout(int batchKind, const std::vector<BatchColumnState>& columns) {
  const QString section = SectionOf(batchKind);
  for (size_t n = 0; n < columns.size(); ++n) {
    const QString i = QString::number(n);
    Settings::SetInt("Visible_" + i, columns[n].visible ? 1 : 0, section);
    Settings::SetInt("Position_" + i, columns[n].position, section);
    Settings::SetInt("Width_" + i, columns[n].width, section);
  }
}

BatchBarLook BatchBarLookOf(BatchBarState state) {
  switch (state) {
    case BatchBarState::Paused: return {0x2deaff, 0x2deaff, 0xe73937, 0xe73937};
    case BatchBarState::Cancelled: return {0xa3, 0xff, 0xffffff, 0xe73937};
    case BatchBarState::Running: break;
  }
  return {0x7b0000, 0xff0000, 0xffffff, 0xe73937};
}

void BatchCountdown::Tick() {
  if (int(m_remaining) > 0) m_remaining -= 1.0;
}

QString BatchCountdown::Text() const { return BatchEstimateText(m_remaining); }

int CountSupportedFiles(int batchKind, const QString& folder) {
  int n = 0;
  const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::System, QDir::NoSort);
  for (const QFileInfo& fi : entries)
    if (!IsLeftoverName(fi.fileName()) && BatchNameTest(batchKind, fi.absoluteFilePath())) ++n;
  return n;
}

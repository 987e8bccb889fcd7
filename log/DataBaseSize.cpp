#include "log/DataBaseSize.h"

#include <QFile>
#include <cmath>

#include "app/Session.h"
#include "app/Settings.h"
#include "app/Text.h"

QString DataBaseSizeText(int64_t n) {
  double d = double(n) / 1024.0;
  double x = d;
  int unit = 0;
  if (x > 1.0) {
    // Each step divides once more; the last value above 1 is the one shown.
    for (;;) {
      if (++unit == 3) break;  // nothing beyond GB
      d /= 1024.0;
      if (d <= 1.0) break;
      x = d;
    }
  }
  if (unit == 0) return QString::asprintf("%4d", int(n)).trimmed() + Tonvane::tr(" bytes");
  const QString number =
      (x == std::floor(x) ? QString::asprintf("%4.0f", x) : QString::asprintf("%4.2f", x)).trimmed();
  static const char* const units[] = {"", QT_TRANSLATE_NOOP("Tonvane", " kB"), QT_TRANSLATE_NOOP("Tonvane", " MB"),
                                      QT_TRANSLATE_NOOP("Tonvane", " GB")};
  return number + Tonvane::tr(units[unit]);
}

bool DataBaseSizeLabel(const QString& path, QString& label) {
  QFile f(path);
  if (!f.open(QIODevice::ReadOnly)) return false;
  const int64_t size = f.size();
  f.close();
  label = Tonvane::tr("Current size the Database: ") + DataBaseSizeText(size);
  return true;
}

QString DataBaseCapText(int mb) { return QString::asprintf("%d", mb) + Tonvane::tr(" MB"); }

int StepDataBaseCap(int position, int delta) {
  const int span = kDataBaseCapMax - kDataBaseCapMin + 1;
  int p = (position - kDataBaseCapMin + delta) % span;
  if (p < 0) p += span;
  return p + kDataBaseCapMin;
}

void StoreDataBaseCap(Session& s, int mb) {
  Settings::SetInt(QStringLiteral("DataBaseSize"), mb);
  s.m_dataBaseSizeMb = mb;
}

#include "batch/NaturalOrder.h"

#include <QCollator>

namespace {

qsizetype RunEnd(const QString& s, qsizetype i, bool digits) {
  while (i < s.size() && s[i].isDigit() == digits) ++i;
  return i;
}

}  // namespace

int NaturalCompare(const QString& a, const QString& b) {
  thread_local QCollator collator = [] {
    QCollator c;
    c.setCaseSensitivity(Qt::CaseInsensitive);
    return c;
  }();
  qsizetype i = 0, j = 0;
  while (i < a.size() && j < b.size()) {
    const bool da = a[i].isDigit(), db = b[j].isDigit();
    if (da != db) return da ? -1 : 1;  // numbers before words
    const qsizetype ei = RunEnd(a, i, da), ej = RunEnd(b, j, db);
    const QStringView ra = QStringView(a).mid(i, ei - i), rb = QStringView(b).mid(j, ej - j);
    int c;
    if (da) {
      qsizetype za = 0, zb = 0;
      while (za + 1 < ra.size() && ra[za] == u'0') ++za;
      while (zb + 1 < rb.size() && rb[zb] == u'0') ++zb;
      const QStringView va = ra.mid(za), vb = rb.mid(zb);
      c = va.size() != vb.size() ? (va.size() < vb.size() ? -1 : 1) : va.compare(vb);
    } else {
      c = collator.compare(ra, rb);
    }
    if (c != 0) return c < 0 ? -1 : 1;
    i = ei;
    j = ej;
  }
  return i < a.size() ? 1 : j < b.size() ? -1 : 0;
}

#pragma once
// Natural name order: runs of digits compare by their value ("track2" before "track10"),
// the rest by the locale's collation, ignoring case. It does not depend on the collator's
// numeric mode, which the C locale lacks.
#include <QString>

int NaturalCompare(const QString& a, const QString& b);
inline bool NaturalLess(const QString& a, const QString& b) {
  const int c = NaturalCompare(a, b);
  return c != 0 ? c < 0 : a < b;
}

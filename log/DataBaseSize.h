#pragma once
// What the Database dialog shows and sets, without the dialog: the log's size as text and
// the cap in megabytes (1 to 12, stored at once, in force from the next start).
#include <QString>
#include <cstdint>

struct Session;

constexpr int kDataBaseCapMin = 1;
constexpr int kDataBaseCapMax = 12;

// A size in bytes, kB, MB or GB: "226 bytes", "1.50 kB", "2 kB".
QString DataBaseSizeText(int64_t bytes);
// "Current size the Database: " and the size of the file at `path`; false when the file
// cannot be opened (the label then keeps its text).
bool DataBaseSizeLabel(const QString& path, QString& label);
// The cap as the dialog shows it: "5 MB".
QString DataBaseCapText(int mb);
// The up-down control: one step of `delta` from `position`, wrapping round at both ends.
int StepDataBaseCap(int position, int delta);
// A new cap: into the setting DataBaseSize at once and into the session.
void StoreDataBaseCap(Session& s, int mb);

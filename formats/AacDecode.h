#pragma once
// The decode loops of the AAC kind (DecodeMp4OrAac in formats/Decode.h): AAC in an MP4
// container through the mp4ff reader and faad2, a raw ADTS or ADIF stream through faad2,
// ALAC packet by packet. Each parses the source again and needs nothing of the open.
#include <QString>

// The family of the decoder threads' boxes with "Don't show again": one memory of the tick
// for all of them, so a file with many bad frames does not pile up boxes.
extern const QString kMp4DecoderFamily;

// Creates (or empties) the work file; false if it can't be made or is the source itself.
bool CreateEmptyWorkFile(const QString& workPath, const QString& sourcePath);
QString CannotBeCreatedText(const QString& workPath);

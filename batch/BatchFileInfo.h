#pragma once
// The record behind a row of the batch list, and the program-wide list of them in order of
// adding. The list model keeps its rows pointing into g_batchFiles; a record's address
// stays fixed while it is listed.
#include <QString>
#include <cstdint>
#include <list>

struct BatchFileInfo {
  double seconds = 0;         // duration in seconds, 0 when unknown
  uint32_t durationMs = 0;
  QString path;               // full path, the key of every look-up
  uint32_t channels = 0;
  uint32_t sampleRate = 0;
  uint32_t bits = 0;          // 0 for MP3 and Ogg
  uint32_t fileSize = 0;      // low 32 bits
  uint16_t wavBits = 0;       // WAVE: bits of the format chunk
  uint32_t wavAvgBytes = 0;   // WAVE: average bytes per second
  uint16_t wavFormatTag = 0;  // WAVE: format tag
  uint32_t isMp4 = 0;         // MP4 kinds: 1 MP4 container, 0 raw AAC
  uint32_t mpegVersion = 0;   // MP4 kinds: 0 MPEG-4, 1 MPEG-2
  uint32_t bad = 0;           // the file can't be tested
  uint32_t kind = 0;          // the row's own kind (5 or 6 in an MP4 batch)

  // What the scan read beyond the record: the whole size for the totals, why a bad file
  // can't be tested (the message a person would have seen), and the property cells.
  uint64_t fullSize = 0;
  QString error;
  QString audioFormat;   // "FLAC (Free Lossless Audio Codec)", "MPEG 1.0 Layer III", ...
  QString sampleRateText;
  QString bitRateText;   // " 128 kbps"
  QString modeText;      // MP3: " Joint Stereo", ...
  QString codingText;    // "CBR", "VBR", "ABR"
  int mpegMode = -1;     // MP3 channel mode, 3 mono
};

extern std::list<BatchFileInfo> g_batchFiles;

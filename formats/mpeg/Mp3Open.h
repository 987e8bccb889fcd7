#pragma once
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

struct Session;
class CMPAStream;

// What the MPEG reader learns of a file without decoding it.
struct Mp3Properties {
  int vbr = 0;               // shown as "VBR": a VBR header, or frames of different rates
  int hasVbrHeader = 0;
  int bitRate = 0;           // bit/s of a frame, or the average kbit/s of a walk
  uint32_t version = 0;      // the two version bits: 3 MPEG 1, 2 MPEG 2, 0 MPEG 2.5
  uint32_t layer = 0;        // 0 Layer I, 1 Layer II, 2 Layer III
  uint32_t channelMode = 0;  // 0 stereo, 1 joint stereo, 2 dual channels, 3 mono
  uint32_t sampleRate = 0;
  uint32_t samplesPerFrame = 0;
  uint32_t frames = 0;       // counted by a walk, or the VBR header's; 0 for a constant rate
  uint32_t audioBytes = 0;   // between the leading and the trailing tags
  uint32_t tagBytes = 0;
  uint32_t fileSize = 0;     // audioBytes + tagBytes
  uint32_t durationMs = 0;
};

enum class Mp3ReadResult {
  Ok,
  NoSound,    // fewer than two frames
  Errors,     // anything thrown: no frame header at all, a corrupt tag, no memory
  Cancelled,  // `pump` returned false during a frame walk
};

// Reads the tags, the frames and the VBR header of `path`. A variable-rate file without a
// VBR header is walked frame by frame; `pump` (may be empty) is called every few thousand
// frames and a false return ends the walk.
Mp3ReadResult ReadMp3Properties(const QString& path, Mp3Properties& out,
                                const std::function<bool()>& pump = {});
// The same over any stream (bytes in memory).
Mp3ReadResult ReadMp3Properties(std::unique_ptr<CMPAStream> stream, Mp3Properties& out,
                                const std::function<bool()>& pump = {});

// The property lines of an MPEG file.
QString Mp3BitRateLine(int bitRate);
QString Mp3ModeLine(uint32_t channelMode);
QString Mp3CodingLine(int vbr);
QString Mp3SampleRateLine(uint32_t sampleRate);

// Reads an MPEG audio file (or a WAV with format tag 0x55), fills SourceFormat and the
// property lines, and starts the copy worker. Returns 1 on success.
int OpenMp3(Session& s);

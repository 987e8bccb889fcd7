#pragma once
// The prober of AAC and ALAC files: MP4 containers (a byte scan over the atoms, not a tree
// parser), raw ADTS streams and ADIF streams. It reads the mapped file once and leaves the
// properties that the open shows; the decoder threads parse again on their own.
#include <QString>
#include <cstddef>
#include <cstdint>
#include <functional>

#include "formats/WorkFile.h"

struct Session;

// What the atom walk found. Positions are byte offsets of an atom's 4-character type;
// its size stands 4 bytes before.
struct Mp4AtomWalk {
  uint32_t mdatSize = 0;
  uint64_t mdatPayload = 0;  // first byte behind the "mdat" type
  uint32_t sttsSize = 0;
  uint32_t stscSize = 0;
  uint32_t stszSize = 0;
  uint64_t stszPos = 0;
  uint32_t chunkOffsetSize = 0;  // "stco" or "co64"
  uint32_t mdhdDuration = 0;
  uint32_t format = 0;  // 'alac', 'mp4a' or 0
  int channels = 0;
  int bits = 0;
  int sampleRate = 0;
  int bitRate = 0;
  int objectType = 0;
  int audioObjectType = 0;
  uint64_t alacPos = 0;  // the inner "alac" atom of the sample description
  uint32_t alacSize = 0;
};

// Walks the atoms of an MP4 file in memory from `start`. `pump` (may be empty) runs at
// each step of the sample table.
void WalkMp4Atoms(const uint8_t* data, uint64_t size, uint64_t start, Mp4AtomWalk& walk,
                  const std::function<void()>& pump = {});

// Where a stream starts: behind a leading ID3v2 tag, at "ftyp" (MP4), at an ADTS sync or
// at "ADIF", by a test at the start and else a byte scan.
struct AacStart {
  enum Kind { None, Mp4, Adts, Adif } kind = None;
  uint64_t offset = 0;   // the cursor: the ADTS sync, "ADIF", or the MP4 scan's start
  uint32_t id3Size = 0;
};
AacStart FindAacStart(const uint8_t* data, uint64_t size);

class AACFile {
 public:
  enum Type { kTypeAlac = 0, kTypeAac = 1, kTypeUnreadable = 2, kTypeDamaged = 3, kTypeUnknown = -1 };

  // Maps the file and probes it. Failures to open, size or map it are reported through
  // the session's prompt (type 2); so is damage (type 3) when reportDamage is set.
  AACFile(Session& s, const QString& path, int reportDamage);
  // Probes bytes in memory, silently (tests, fuzzing).
  AACFile(const uint8_t* data, uint64_t size);
  virtual ~AACFile();
  AACFile(const AACFile&) = delete;
  AACFile& operator=(const AACFile&) = delete;

  int mpegVersion() const { return m_mpegVersion; }
  int channels() const { return m_channels; }
  int sampleRate() const { return m_sampleRate; }
  int bitRate() const { return m_bitRate; }
  int bits() const { return m_bits; }
  int durationSec() const { return m_durationSec; }
  int objectType() const { return m_objectType; }
  int audioObjectType() const { return m_audioObjectType; }
  int headerType() const { return m_headerType; }
  uint32_t id3Size() const { return m_id3Size; }
  uint32_t durationMs() const { return m_durationMs; }
  const QString& fileName() const { return m_fileName; }
  int isMp4() const { return m_isMp4; }
  int type() const { return m_type; }
  uint32_t mdhdDuration() const { return m_mdhdDuration; }
  double seconds() const { return m_seconds; }
  int reportDamage() const { return m_reportDamage; }

 private:
  // 0 probed, 1 the file can't be read, 2 damaged.
  int Probe(const uint8_t* data, uint64_t size, const std::function<void()>& pump);
  void ProbeAdts(const uint8_t* data, uint64_t size, uint64_t cursor);
  void ProbeAdif(const uint8_t* data, uint64_t size, uint64_t cursor);
  int ProbeMp4(const uint8_t* data, uint64_t size, const std::function<void()>& pump);
  void Finish(int result);

  int m_mpegVersion = 0;
  int m_channels = 0;
  int m_sampleRate = 0;
  int m_bitRate = 0;
  int m_bits = 0;
  int m_durationSec = 0;
  int m_objectType = 0;
  int m_audioObjectType = 0;
  int m_headerType = 0;
  const uint8_t* m_cursor = nullptr;
  const uint8_t* m_limit = nullptr;
  uint32_t m_id3Size = 0;
  uint32_t m_durationMs = 0;
  QString m_fileName;
  int m_isMp4 = 0;
  int m_type = kTypeUnknown;
  uint32_t m_mdhdDuration = 0;
  double m_seconds = 0;
  int m_reportDamage = 0;
  MappedFile m_file;  // the view the prober reads; only its start and end are used
};

// The sampling frequencies by index (ISO/IEC 14496-3); 0 beyond the table.
int AacSampleRateOfIndex(unsigned index);

// The prober's messages, shared with the raw AAC decoder.
QString AacEmptyFileText(const QString& path);
QString AacDamagedText();
// Opens and maps the whole of `path` through `file`, reporting a failure as the prober
// does. True with the view mapped.
bool MapSourceForProbe(Session& s, MappedFile& file, const QString& path);

#pragma once
// Our Monkey's Audio decoder: reads the descriptor, header and seek table of a .ape file
// (format 3.99 and later) and decodes its frames to interleaved little-endian PCM, as a WAV
// data chunk holds it (8-bit samples unsigned). Every frame is checked against its CRC
// before any of its samples is handed out; a damaged or cut frame is an error, never
// silence or guesswork.
//
// The four flat functions at the end are the interface the readers use, with the numbers of
// the Monkey's Audio library's fields and error codes.
#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

class MappedFile;

namespace ape {

struct PredictorSet;

// Error codes.
constexpr int kOk = 0;
constexpr int kErrRead = 1000;             // the file ends inside a frame, or cannot be read
constexpr int kErrInvalidInput = 1002;     // not a Monkey's Audio file, or a broken header
constexpr int kErrChecksum = 1009;         // a frame does not match its CRC
constexpr int kErrDecodingFrame = 1010;    // a frame's data cannot be decoded
constexpr int kErrUnsupportedVersion = 1014;
constexpr int kErrMemory = 2000;

// Information fields.
enum InfoField : int {
  kInfoFileVersion = 1000,
  kInfoCompressionLevel = 1001,
  kInfoFormatFlags = 1002,
  kInfoSampleRate = 1003,
  kInfoBitsPerSample = 1004,
  kInfoBytesPerSample = 1005,
  kInfoChannels = 1006,
  kInfoBlockAlign = 1007,
  kInfoBlocksPerFrame = 1008,
  kInfoFinalFrameBlocks = 1009,
  kInfoTotalFrames = 1010,
  kInfoWavHeaderBytes = 1011,
  kInfoWavTerminatingBytes = 1012,
  kInfoWavDataBytes = 1013,
  kInfoWavTotalBytes = 1014,
  kInfoApeTotalBytes = 1015,
  kInfoTotalBlocks = 1016,
  kInfoLengthMs = 1017,
};

// Format flags of the header.
constexpr int kFlag8Bit = 1;
constexpr int kFlagCrc = 2;
constexpr int kFlagPeakLevel = 4;
constexpr int kFlag24Bit = 8;
constexpr int kFlagSeekElements = 16;
constexpr int kFlagCreateWavHeader = 32;

// The oldest format version decoded.
constexpr int kMinVersion = 3990;
// Largest frame accepted, in bytes of decoded PCM (real files stay far below).
constexpr uint64_t kMaxFrameBytes = uint64_t(256) << 20;

struct StreamInfo {
  int version = 0;
  int compressionLevel = 0;
  int formatFlags = 0;
  int channels = 0;
  int sampleRate = 0;
  int bits = 0;
  uint32_t blocksPerFrame = 0;
  uint32_t finalFrameBlocks = 0;
  uint32_t totalFrames = 0;
  uint64_t totalBlocks = 0;
  uint32_t wavHeaderBytes = 0;
  uint32_t terminatingBytes = 0;
  uint64_t junkBytes = 0;        // an ID3v2 tag or other bytes before the descriptor
  uint64_t headerOffset = 0;     // absolute offset of the header after the descriptor
  uint64_t frameDataStart = 0;   // absolute offsets in the file
  uint64_t frameDataEnd = 0;
  std::vector<uint64_t> seekTable;  // absolute offset of each frame

  int BlockAlign() const { return (bits / 8) * channels; }
  uint64_t WavDataBytes() const { return totalBlocks * uint64_t(BlockAlign()); }
  int64_t LengthMs() const {
    if (sampleRate <= 0) return 0;
    const double ms = double(totalBlocks) * 1000.0 / double(sampleRate);
    return ms < 9.0e18 ? int64_t(ms) : INT64_MAX;
  }
};

// Reads descriptor, header and seek table from the image of a whole file. Returns kOk, or
// kErrInvalidInput (also for a header cut short) or kErrUnsupportedVersion.
int ParseHeader(const uint8_t* data, uint64_t size, StreamInfo& info);

class Decoder {
 public:
  Decoder();
  ~Decoder();
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;

  // Decodes from bytes in memory that outlive the decoder.
  int Open(const uint8_t* data, uint64_t size);
  // Maps the file and opens it. On a system failure returns kErrRead with errno set.
  int OpenFile(const QString& path);

  const StreamInfo& Info() const { return m_info; }
  int64_t GetInfo(int field) const;

  // Copies up to `blocks` blocks (one sample of every channel) into `out`, which holds
  // blocks × block align bytes. `retrieved` is the number copied; 0 at the end. A damaged
  // frame gives its error code: the blocks before it are delivered, none of it, and every
  // later call gives the error again.
  int GetData(uint8_t* out, int64_t blocks, int64_t* retrieved);

  // Sample frames handed out so far.
  uint64_t Position() const { return m_delivered; }

 private:
  int DecodeFrame(uint32_t index);
  template <typename S>
  int DecodeFrameAs(uint64_t start, uint32_t blocks);

  std::unique_ptr<MappedFile> m_file;
  std::unique_ptr<PredictorSet> m_predictors;
  const uint8_t* m_data = nullptr;
  uint64_t m_size = 0;
  StreamInfo m_info;
  bool m_legacy = false;
  int m_error = kOk;
  uint32_t m_nextFrame = 0;
  std::vector<uint8_t> m_frame;  // the decoded, checked PCM of the current frame
  size_t m_framePos = 0;
  uint64_t m_delivered = 0;
};

}  // namespace ape

// The flat interface of the Monkey's Audio library.
using APE_DECOMPRESS_HANDLE = void*;

// Opens a file; null on failure with the error code in *errorCode (errno tells a system
// failure).
APE_DECOMPRESS_HANDLE c_APEDecompress_CreateW(const wchar_t* fileName, int* errorCode);
// One of the information fields (ape::InfoField); 0 for an unknown field or a null handle.
int64_t c_APEDecompress_GetInfo(APE_DECOMPRESS_HANDLE handle, int field, int64_t param1 = 0,
                                int64_t param2 = 0);
// Decodes up to `blocks` blocks into `buffer`; see ape::Decoder::GetData.
int c_APEDecompress_GetData(APE_DECOMPRESS_HANDLE handle, char* buffer, int64_t blocks,
                            int64_t* blocksRetrieved);
void c_APEDecompress_Destroy(APE_DECOMPRESS_HANDLE handle);

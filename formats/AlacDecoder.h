#pragma once
// Apple Lossless packets to interleaved little-endian PCM. The decoder keeps the stream's
// configuration (the "cookie" of the sample description) and per-channel work buffers;
// each call of Decode turns one packet into up to frameLength frames.
#include <cstddef>
#include <cstdint>
#include <vector>

constexpr int kAlacNoErr = 0;
constexpr int kAlacParamError = -50;
constexpr int kAlacMemFullError = -108;

// Bytes that must stay readable behind a packet: the entropy decoder fetches whole
// 32-bit words ahead of its position. Callers copy a packet into a buffer this much larger.
constexpr size_t kAlacPacketPadding = 16;

// A reader over one packet, most significant bit first. Reads past the end give zero bits
// (the packet's padding); Overrun() tells whether the position went past the end.
struct BitBuffer {
  const uint8_t* cur = nullptr;  // the current byte
  const uint8_t* end = nullptr;  // one past the last byte of the packet
  uint32_t bitIndex = 0;         // 0..7 within *cur
  uint32_t byteSize = 0;

  BitBuffer() = default;
  BitBuffer(const uint8_t* data, uint32_t size) : cur(data), end(data + size), byteSize(size) {}

  uint32_t BytesLeft() const { return cur < end ? uint32_t(end - cur) : 0; }
  uint32_t Read(uint32_t numBits);  // up to 24 bits
  uint32_t ReadSmall(uint32_t numBits) { return Read(numBits); }
  uint32_t ReadOne() { return Read(1); }
  // Moves on by numBits; false (and the position at the end) if that passes the end.
  bool Advance(uint64_t numBits);
  void ByteAlign();
  bool Overrun() const { return cur > end || (cur == end && bitIndex > 0); }
};

class ALACDecoder {
 public:
  struct Config {
    uint32_t frameLength = 0;
    uint8_t compatibleVersion = 0;
    uint8_t bitDepth = 0;
    uint8_t pb = 0;
    uint8_t mb = 0;
    uint8_t kb = 0;
    uint8_t numChannels = 0;
    uint16_t maxRun = 0;
    uint32_t maxFrameBytes = 0;
    uint32_t avgBitRate = 0;
    uint32_t sampleRate = 0;
  };

  // The cookie starts at frameLength (the atom header and version cut off) and is
  // big-endian. 0; -50 when shorter than 24 bytes or of another version; -108 without memory.
  int Init(const uint8_t* cookie, uint32_t size);

  // Decodes one packet into `out`, numChannels interleaved, at the stream's depth
  // (16 bits; 20 bits left-justified in 3 bytes; 24 bits in 3 bytes; 32 bits). `out` must
  // hold numSamples x numChannels samples. outSamples says how many frames were written.
  int Decode(BitBuffer* bits, uint8_t* out, uint32_t numSamples, uint32_t numChannels,
             uint32_t* outSamples);

  const Config& config() const { return m_config; }
  uint16_t activeElements() const { return m_activeElements; }

 private:
  int DecodeChannels(BitBuffer* bits, uint8_t* out, uint32_t channelIndex, uint32_t numChannels,
                     int pair, uint32_t* numSamples, bool* stop);

  Config m_config;
  uint16_t m_activeElements = 0;
  std::vector<int32_t> m_mixBufferU;
  std::vector<int32_t> m_mixBufferV;
  // The predictor's working buffer; after both channels of an element are decoded, its
  // storage holds the extra low bits (as 16-bit values, two per frame for a pair).
  std::vector<int32_t> m_predictor;
  uint16_t* shiftBuffer() { return reinterpret_cast<uint16_t*>(m_predictor.data()); }
};

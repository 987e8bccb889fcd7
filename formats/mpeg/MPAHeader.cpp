#include "formats/mpeg/MPAHeader.h"

#include "formats/mpeg/MPAException.h"
#include "formats/mpeg/MPAStream.h"

namespace {

// [version][index]; version 1 is reserved.
constexpr uint32_t kSampleRates[4][3] = {
    {11025, 12000, 8000}, {0, 0, 0}, {22050, 24000, 16000}, {44100, 48000, 32000}};

// kbit/s by [lsf][layer][index]; index 0 is free format.
constexpr uint32_t kBitRates[2][3][15] = {
    {{0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448},
     {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384},
     {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320}},
    {{0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256},
     {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160},
     {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160}}};

constexpr uint32_t kSamplesPerFrame[2][3] = {{384, 1152, 1152}, {384, 1152, 576}};
constexpr uint32_t kFrameSizeFactor[2][3] = {{12, 144, 144}, {12, 144, 72}};
constexpr uint32_t kSlotSize[3] = {4, 1, 1};
constexpr uint32_t kSideInfoSize[2][2] = {{32, 17}, {17, 9}};  // [lsf][mono]

// MPEG 1 Layer II: which bit-rate indexes each kind of mode allows.
constexpr bool kLayer2AllowedStereo[15] = {1, 0, 0, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
constexpr bool kLayer2AllowedMono[15] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0};

}  // namespace

CMPAHeader::CMPAHeader(CMPAStream* stream, uint32_t& offset, bool exact, const CMPAHeader* compareTo) {
  uint32_t step = 1;
  for (;;) {
    const uint8_t* b = stream->ReadBytes(4, offset, false);
    if (!b) throw CMPAEndOfFileException(offset);
    if (IsSync(b)) {
      try {
        Parse(b, offset);
        if (compareTo && *compareTo != *this) throw CMPAException(CMPAException::IncompatibleHeader, offset);
        return;
      } catch (CMPAException&) {
        if (exact) throw;
      }
    }
    if (!exact) {
      ++offset;
      continue;
    }
    // Around the expected place: +1, -1, +2, -2, +3, -3.
    if (step > 6) throw CMPAException(CMPAException::NoFrameInTolerance, offset);
    if (step & 1)
      offset += step;
    else
      offset -= step;
    ++step;
  }
}

CMPAHeader::CMPAHeader(const uint8_t* bytes, uint32_t offset) { Parse(bytes, offset); }

void CMPAHeader::Parse(const uint8_t* b, uint32_t offset) {
  version = (b[1] >> 3) & 3;
  if (version == MPEGReserved) throw CMPAException(CMPAException::HeaderCorrupt, offset);
  lsf = version == MPEG1 ? 0 : 1;

  layer = 3 - ((b[1] >> 1) & 3);
  if (layer == LayerReserved) throw CMPAException(CMPAException::HeaderCorrupt, offset);

  const uint32_t bitRateIndex = b[2] >> 4;
  if (bitRateIndex == 15) throw CMPAException(CMPAException::HeaderCorrupt, offset);
  bitRate = kBitRates[lsf][layer][bitRateIndex] * 1000;
  if (bitRate == 0) throw CMPAException(CMPAException::FreeBitrate, offset);

  const uint32_t rateIndex = (b[2] >> 2) & 3;
  if (rateIndex == 3) throw CMPAException(CMPAException::HeaderCorrupt, offset);
  sampleRate = kSampleRates[version][rateIndex];

  padding = (b[2] >> 1) & 1;
  samplesPerFrame = kSamplesPerFrame[lsf][layer];

  channelMode = b[3] >> 6;
  emphasis = b[3] & 3;
  if (emphasis == 2) throw CMPAException(CMPAException::HeaderCorrupt, offset);

  if (lsf == 0 && layer == Layer2) {
    const bool allowed = IsMono() ? kLayer2AllowedMono[bitRateIndex] : kLayer2AllowedStereo[bitRateIndex];
    if (!allowed) throw CMPAException(CMPAException::HeaderCorrupt, offset);
  }
}

bool CMPAHeader::operator==(const CMPAHeader& other) const {
  return version == other.version && layer == other.layer && sampleRate == other.sampleRate &&
         IsMono() == other.IsMono() && emphasis == other.emphasis;
}

uint32_t CMPAHeader::GetSideInfoSize() const { return kSideInfoSize[lsf][IsMono() ? 1 : 0]; }

uint32_t CMPAHeader::CalcFrameSize() const {
  if (sampleRate == 0) return 0;
  return (kFrameSizeFactor[lsf][layer] * bitRate / sampleRate + padding) * kSlotSize[layer];
}

#pragma once
#include <QByteArray>
#include <QString>
#include <cstdint>

struct Session;

// The conversion road of a WAV source whose format tag is neither PCM (1), float (3) nor
// MPEG Layer III (0x55): finds a decoder for the tag, fills SourceFormat and the property
// lines, and starts the worker that converts the source into a PCM work file.
// The WAV reader calls it once m_fmtBlock, m_dataOffset and m_dataSize are known.
// Returns 1 on success; otherwise it has shown its own message.
int OpenWavConversion(Session& s);

// What the road makes of a "fmt " block: the decoder's name (empty if no decoder knows the
// tag) and the PCM form of the work file.
struct ConversionPlan {
  bool known = false;     // a decoder exists for the tag (or the extensible subformat)
  QString codecName;      // shown on the Audio Format line
  uint16_t sourceTag = 0; // the tag that chose the decoder (the subformat's for extensible)
  int channels = 0;
  int sampleRate = 0;
  int bits = 0;           // of the work file
  uint16_t workTag = 1;   // 1 PCM, 3 float
};
ConversionPlan PlanConversion(const QByteArray& fmtBlock);

// Source bytes handed to the decoder at a time.
constexpr uint32_t kConversionBlock = 0x32000;

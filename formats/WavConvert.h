#pragma once
struct Session;

// The conversion road of a WAV source whose format tag is neither PCM (1), float (3) nor
// MPEG Layer III (0x55): finds a decoder for the tag, fills SourceFormat and the property
// lines, and starts the worker that converts the source into a PCM work file.
// The WAV reader calls it once m_fmtBlock, m_dataOffset and m_dataSize are known.
// Returns 1 on success; otherwise it has shown its own message.
int OpenWavConversion(Session& s);

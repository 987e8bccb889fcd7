#include "formats/mpeg/MPAException.h"

const char* CMPAException::GetErrorDescription() const {
  static const char* const kTexts[] = {
      "Can't open the file.",
      "Can't set file position.",
      "Can't read from file.",
      "No VBR Header found.",
      "Incomplete VBR Header.",
      "No frame found within tolerance range.",
      "No frame found before end of file was reached.",
      "Header corrupt",
      "Free Bitrate currently not supported",
      "Incompatible Header",
      "Corrupt Lyrics3 Tag",
  };
  int i = int(m_error);
  return i >= 0 && i < int(sizeof kTexts / sizeof kTexts[0]) ? kTexts[i] : "";
}

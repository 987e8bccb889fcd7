#include "formats/WavConvert.h"

#include "app/Session.h"
#include "app/Text.h"

int OpenWavConversion(Session& s) {
  s.m_prompt.Message(TR("Sorry, but the file ") + s.m_fileName + TR(" cannot be opened"));
  return 0;
}

#include "formats/WavReader.h"

#include "app/Session.h"
#include "app/Text.h"

int OpenWav(Session& s) {
  s.m_prompt.Message(TR("Sorry, but this kind of file cannot be opened yet."));
  return 0;
}

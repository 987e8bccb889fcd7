#include "player/SoundResult.h"

#include "app/Text.h"

namespace snd {

QString ErrorString(int result) {
  switch (result) {
    case OK: return Tonvane::tr("No errors.");
    case ERR_CHANNEL_ALLOC: return Tonvane::tr("No free channel could be found to play the sound. ");
    case ERR_CHANNEL_STOLEN: return Tonvane::tr("The specified channel has been reused to play another sound. ");
    case ERR_FILE_BAD: return Tonvane::tr("Error loading file. ");
    case ERR_FILE_COULDNOTSEEK: return Tonvane::tr("Couldn't perform seek operation. ");
    case ERR_FILE_EOF: return Tonvane::tr("The file ends before any sound could be read from it. ");
    case ERR_FILE_NOTFOUND: return Tonvane::tr("File not found. ");
    case ERR_FORMAT: return Tonvane::tr("Unsupported file or audio format. ");
    case ERR_INITIALIZED: return Tonvane::tr("The sound system is not ready for this call. ");
    case ERR_INVALID_HANDLE: return Tonvane::tr("An invalid object handle was used. ");
    case ERR_INVALID_PARAM: return Tonvane::tr("An invalid parameter was passed to this function. ");
    case ERR_INVALID_POSITION: return Tonvane::tr("An invalid seek position was passed to this function. ");
    case ERR_MEMORY: return Tonvane::tr("Not enough memory or resources. ");
    case ERR_OUTPUT_INIT: return Tonvane::tr("Error initializing the sound output device. ");
    case ERR_UNINITIALIZED: return Tonvane::tr("The sound system has not been initialized yet. ");
    default: return Tonvane::tr("Unknown error.");
  }
}

}  // namespace snd

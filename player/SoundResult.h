#pragma once
// Result codes of the sound system. The numbers index the player's error table (the
// message box text of a failed call), so they stay as they are.
#include <QString>

namespace snd {

enum Result : int {
  OK = 0,                       // no error
  ERR_CHANNEL_ALLOC = 10,       // no channel could be had for the sound
  ERR_CHANNEL_STOLEN = 11,      // the channel now plays another sound
  ERR_FILE_BAD = 19,            // the file could not be read
  ERR_FILE_COULDNOTSEEK = 20,   // the stream cannot be positioned
  ERR_FILE_EOF = 22,            // the file ends before any sound
  ERR_FILE_NOTFOUND = 23,       // no file at that path
  ERR_FORMAT = 25,              // not a format the decoders know, or a stream they refuse
  ERR_INITIALIZED = 33,         // the call needs a system that is not yet running
  ERR_INVALID_HANDLE = 36,      // the channel has ended or was stopped
  ERR_INVALID_PARAM = 37,       // a null or out-of-range argument
  ERR_INVALID_POSITION = 38,    // a position past the end of the sound
  ERR_MEMORY = 43,              // out of memory
  ERR_OUTPUT_INIT = 60,         // the sound device could not be opened
  ERR_UNINITIALIZED = 89,       // the system has not been initialised
};

// Number of rows of the error table; any code outside it reads "Unknown error.".
constexpr int kErrorTableSize = 96;

// The error table's text of a code: each but the first ends in a blank, so that the
// message box can put "Sorry, but " before it and a tail behind it.
QString ErrorString(int result);

// Millisecond unit for lengths and positions, the only unit the player uses.
constexpr unsigned TIMEUNIT_MS = 1;

}  // namespace snd

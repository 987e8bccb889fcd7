#pragma once
// The sound at the end of a test: "notify.wav" from the working folder, else the one the
// program ships, played through the process's sound system without waiting for it.
#include <QString>

// Where the sound is found: the working folder, else the program's data folders
// (app/DataPaths.h). Empty when none has it.
QString FindNotifySound();
// Starts the sound; a second call cuts the first short. Silent when there is no file or no
// sound device.
void PlayNotify();
// Lets go of the sound and of the share in the sound system (end of the program).
void ReleaseNotify();

#pragma once
// FFmpeg and SDL2 are loaded at the first call of one of their functions (see
// cmake/LazyLibraries.cmake), so a program that never needs them never loads them.
// Settings that must hold whenever they are loaded, such as FFmpeg's log level, are
// handed in here instead of being made at the start.

using LibrariesLoadedHook = void (*)();

// Runs `hook` once the libraries are loaded: at once when they already are (or are
// linked as usual), otherwise right after the first call loads them, before that call
// goes on. Hooks run in the order given.
void WhenLibrariesLoad(LibrariesLoadedHook hook);

// The first call of a lazily loaded library's function lands here (see
// cmake/LazyLibraries.cmake): the libraries are loaded once, every exported function is
// looked up and its jump slot set, and the caller's call goes on to the real function.
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <vector>

#include "lazy/LazyLibraries.h"

extern "C" {
extern void* tonvane_lazy_slots[];
extern const char* const tonvane_lazy_names[];
extern const char* const tonvane_lazy_libs[];
extern const unsigned long tonvane_lazy_count;
extern const unsigned long tonvane_lazy_lib_count;
extern const unsigned char tonvane_lazy_lib_of[];
__attribute__((visibility("hidden"))) void* TonvaneLazyResolve(unsigned long index);
}

namespace {

std::once_flag g_loaded;
std::vector<bool> g_found;
std::mutex g_hooksMutex;
std::vector<LibrariesLoadedHook> g_hooks;
bool g_loadedAll = false;  // under g_hooksMutex

void LoadAll() {
  std::vector<void*> handles(tonvane_lazy_lib_count);
  for (unsigned long i = 0; i < tonvane_lazy_lib_count; ++i) {
    handles[i] = ::dlopen(tonvane_lazy_libs[i], RTLD_NOW | RTLD_LOCAL);
    if (!handles[i]) {
      std::fprintf(stderr, "tonvane: cannot load %s: %s\n", tonvane_lazy_libs[i], ::dlerror());
      std::abort();
    }
  }
  // A function the installed library lacks keeps its slot, which leads back here.
  g_found.assign(tonvane_lazy_count, false);
  for (unsigned long k = 0; k < tonvane_lazy_count; ++k) {
    if (void* f = ::dlsym(handles[tonvane_lazy_lib_of[k]], tonvane_lazy_names[k])) {
      tonvane_lazy_slots[k] = f;
      g_found[k] = true;
    }
  }
  std::vector<LibrariesLoadedHook> hooks;
  {
    std::lock_guard<std::mutex> lock(g_hooksMutex);
    g_loadedAll = true;
    hooks.swap(g_hooks);
  }
  for (LibrariesLoadedHook h : hooks) h();
}

}  // namespace

void* TonvaneLazyResolve(unsigned long index) {
  std::call_once(g_loaded, LoadAll);
  if (!g_found[index]) {
    std::fprintf(stderr, "tonvane: %s is missing from %s\n", tonvane_lazy_names[index],
                 tonvane_lazy_libs[tonvane_lazy_lib_of[index]]);
    std::abort();
  }
  return tonvane_lazy_slots[index];
}

void WhenLibrariesLoad(LibrariesLoadedHook hook) {
  {
    std::lock_guard<std::mutex> lock(g_hooksMutex);
    if (!g_loadedAll) {
      g_hooks.push_back(hook);
      return;
    }
  }
  hook();
}

// The MP4 reader through its callbacks on arbitrary bytes: every track, its decoder
// configuration and (a bounded number of) its samples.
#include <cstdlib>
#include <cstring>
#include <vector>

#include "formats/Mp4ff.h"

namespace {

struct Memory {
  const uint8_t* data;
  uint64_t size;
  uint64_t pos;
};

uint32_t Read(void* user, void* buffer, uint32_t length) {
  auto* m = static_cast<Memory*>(user);
  if (m->pos >= m->size) return 0;
  const uint64_t n = length < m->size - m->pos ? length : m->size - m->pos;
  std::memcpy(buffer, m->data + m->pos, size_t(n));
  m->pos += n;
  return uint32_t(n);
}

uint32_t Seek(void* user, uint64_t position) {
  static_cast<Memory*>(user)->pos = position;
  return 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::vector<uint8_t> bytes(data, data + size);
  Memory m{bytes.data(), size, 0};
  mp4ff_callback_t cb{Read, Seek, &m};
  mp4ff_t* f = mp4ff_open_read(&cb);
  if (!f) return 0;
  for (int t = 0; t < mp4ff_total_tracks(f) && t < 8; ++t) {
    unsigned char* buf = nullptr;
    unsigned int len = 0;
    if (mp4ff_get_decoder_config(f, t, &buf, &len) == 0) std::free(buf);
    const int n = mp4ff_num_samples(f, t);
    for (int i = 0; i < n && i < 256; ++i) {
      if (mp4ff_read_sample(f, t, i, &buf, &len)) std::free(buf);
    }
    if (mp4ff_read_sample(f, t, n, &buf, &len)) std::free(buf);  // one past the time table
  }
  const char *name, *value;
  for (int i = 0; i < mp4ff_meta_get_num_items(f); ++i) mp4ff_meta_get_by_index(f, i, &name, &value);
  mp4ff_close(f);
  return 0;
}

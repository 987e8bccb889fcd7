#pragma once
// A small reader of MP4 files through read and seek callbacks: the movie's tracks, their
// sample descriptions and decoder-specific info, and the sample tables that place each
// sample in the file. Enough to feed an AAC decoder sample by sample.
#include <cstdint>

struct mp4ff_callback_t {
  // Reads up to `length` bytes; returns the count read (short at the end of the file).
  uint32_t (*read)(void* user_data, void* buffer, uint32_t length);
  // Moves to an absolute position; returns 0 on success.
  uint32_t (*seek)(void* user_data, uint64_t position);
  void* user_data;
};

struct mp4ff_t;

constexpr int kMp4ffMaxTracks = 1024;

enum Mp4ffTrackType { kMp4ffTrackUnknown = 0, kMp4ffTrackAudio = 1, kMp4ffTrackVideo = 2, kMp4ffTrackSystem = 3 };

// Parses the file; null if not even one atom could be read.
mp4ff_t* mp4ff_open_read(mp4ff_callback_t* callbacks);
int32_t mp4ff_total_tracks(const mp4ff_t* f);
// A heap copy (malloc) of the track's decoder-specific info; the caller frees it.
// 0 on success, 1 when the track has none.
int32_t mp4ff_get_decoder_config(const mp4ff_t* f, int track, unsigned char** buffer, unsigned int* size);
// The sum of the sample counts of the track's time-to-sample table.
int32_t mp4ff_num_samples(const mp4ff_t* f, int track);
// A heap copy (malloc) of one sample; the caller frees it. The byte count, 0 on failure.
int32_t mp4ff_read_sample(mp4ff_t* f, int track, int sample, unsigned char** buffer, unsigned int* size);
void mp4ff_close(mp4ff_t* f);

// Track properties as the sample description and headers give them.
int32_t mp4ff_get_track_type(const mp4ff_t* f, int track);
int32_t mp4ff_get_channel_count(const mp4ff_t* f, int track);
int32_t mp4ff_get_sample_rate(const mp4ff_t* f, int track);
int32_t mp4ff_get_audio_type(const mp4ff_t* f, int track);  // object type indication
int32_t mp4ff_get_avg_bitrate(const mp4ff_t* f, int track);
int32_t mp4ff_time_scale(const mp4ff_t* f, int track);
int64_t mp4ff_get_track_duration(const mp4ff_t* f, int track);
// Where sample n lies: its byte offset and size. False when the tables can't place it.
bool mp4ff_sample_place(const mp4ff_t* f, int track, int sample, uint64_t* offset, uint32_t* size);
// Metadata items: name and value of item i; false beyond the list.
int32_t mp4ff_meta_get_num_items(const mp4ff_t* f);
bool mp4ff_meta_get_by_index(const mp4ff_t* f, int index, const char** name, const char** value);

#include "cli/Usage.h"

void SetUpParser(QCommandLineParser& p, const CliOptions& o) {
  p.setApplicationDescription(
      "Tonvane measures how loud audio files are: the peak level of each channel, or its average level "
      "against an 89 dB reference. It takes files, folders and M3U/M3U8 playlists, tests them on all "
      "processor cores, and prints one result per file in the order given, then a summary: files, tested, "
      "from the test log, failed, seconds of audio, seconds taken and times realtime. A second test of an "
      "unchanged file is answered from the test log and reads no samples. While the standard error is a "
      "terminal it shows the progress with the time left. Ctrl+C stops after the files done so far, "
      "which stay in the log; no work file is left. Exit status: 0 when every file was measured, 1 when "
      "any failed, 2 for a wrong command line, 130 when stopped by Ctrl+C.");
  p.addHelpOption();
  p.addVersionOption();
  p.addOptions({o.peak, o.average, o.db, o.info, o.recursive, o.kind, o.jobs, o.json, o.csv, o.noLog, o.logFile});
  p.addPositionalArgument("PATH",
                          "Audio files (WAV, MP3, FLAC, Ogg Vorbis, APE, AAC, ALAC), folders and M3U/M3U8 "
                          "playlists. Folders are taken in natural name order.",
                          "PATH...");
}

#pragma once
// What tonvane-cli says about itself: the one source of --help, from which the man page
// is made as well.
#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QString>

struct CliOptions {
  QCommandLineOption peak{"peak", "Peak test: the largest sample of each channel, in percent of full scale "
                                  "(or dB with --db)."};
  QCommandLineOption average{"average", "Average test: the loudness of each channel against an 89 dB reference, "
                                        "the highest level it could have without clipping, and the clipping "
                                        "verdict. MP3 files always take this test."};
  QCommandLineOption db{"db", "Show levels in dB instead of percent."};
  QCommandLineOption info{"info", "Show each file's properties only (the default without a test)."};
  QCommandLineOption recursive{{"r", "recursive"}, "Take the files of every folder below a folder argument too, "
                                                   "not only of the folder itself."};
  QCommandLineOption kind{"kind", "Take only the files of one kind: mp3 (with WAV files that hold MP3 audio), "
                                  "wav, flac, ogg, ape or mp4 (AAC and ALAC); a named file of another kind is "
                                  "refused. Without it every supported file is taken and measured by its own kind.",
                          "KIND"};
  QCommandLineOption jobs{"jobs", "Keep N processor cores busy, one file each (default: the number of cores). "
                                  "The results and the test log are the same for any N.",
                          "N"};
  QCommandLineOption json{"json", "One JSON object per file and line; the summary goes to the standard error."};
  QCommandLineOption csv{"csv", "One CSV row per file with the test log's columns, a status and a message; "
                                "the summary goes to the standard error."};
  QCommandLineOption noLog{"no-log", "Measure every file afresh and leave the test log alone."};
  QCommandLineOption logFile{"log", "Use FILE as the test log (made when missing).", "FILE"};
};

// Sets up the parser with the description, every option and the arguments.
void SetUpParser(QCommandLineParser& parser, const CliOptions& options);

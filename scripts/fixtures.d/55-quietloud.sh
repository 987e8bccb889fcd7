# A quiet then a loud stretch, left and right at different levels, through every kind of
# the conversion road; each with FFmpeg's own decode to plain PCM (*.ref.raw), which the
# levels of the converted file must match.
set -euo pipefail
cd "$FIXTURES"
ff() { ffmpeg -nostdin -hide_banner -loglevel error -y "$@"; }
ffx() { ff -i "$1" -fflags +bitexact -flags +bitexact -map_metadata -1 "${@:2}"; }

ql() {  # ql BITS CHANNELS RATE OUTPUT
  local remix="remix 1v0.9 2v0.5"
  [ "$2" = 1 ] && remix="remix 1v0.8"
  sox -R -n -b "$1" -c "$2" -r "$3" ql_q.wav synth 3 sine 440 sine 660 vol 0.08
  sox -R -n -b "$1" -c "$2" -r "$3" ql_l.wav synth 3 sine 440 sine 660 $remix
  sox ql_q.wav ql_l.wav -t wavpcm "$4"
  rm -f ql_q.wav ql_l.wav
}
ql 16 2 44100 ql_src_16_2.wav
ql 16 1 8000 ql_src_16_1.wav
ql 24 2 48000 ql_src_24_2.wav

ffx ql_src_16_2.wav -c:a adpcm_ima_wav ql_ima.wav
ffx ql_src_16_2.wav -c:a adpcm_ms ql_msadpcm.wav
ffx ql_src_16_2.wav -c:a pcm_alaw ql_alaw.wav
ffx ql_src_16_2.wav -c:a pcm_mulaw ql_mulaw.wav
ffx ql_src_16_1.wav -c:a libgsm_ms ql_gsm.wav
ffx ql_src_16_2.wav -c:a libmp3lame -b:a 192k ql_mp3.wav
# Extensible headers as FFmpeg writes them by default: a LIST chunk stands before the data.
ff -i ql_src_24_2.wav -c:a pcm_s24le ql_ext24.wav
ff -i ql_src_16_2.wav -c:a pcm_f32le ql_extf32.wav
for f in ima msadpcm alaw mulaw gsm mp3; do ff -i "ql_$f.wav" -f s16le -c:a pcm_s16le "ql_$f.ref.raw"; done
ff -i ql_ext24.wav -f s24le -c:a pcm_s24le ql_ext24.ref.raw
ff -i ql_extf32.wav -f f32le -c:a pcm_f32le ql_extf32.ref.raw
rm -f ql_src_*.wav

# FLAC, Ogg Vorbis and compressed WAV sources, each with a reference decode made by the
# format's own command-line tool (raw little-endian PCM, *.ref.raw), and damaged copies.
set -euo pipefail
cd "$FIXTURES"
ff() { ffmpeg -nostdin -hide_banner -loglevel error -y "$@"; }

# Sources as PCM WAV (1.5 s, fixed seeds through sox -R).
sox -R -n -b 16 -c 2 -r 44100 fo_src_16_2.wav synth 1.5 pinknoise vol 0.4
sox -R -n -b 16 -c 1 -r 22050 fo_src_16_1.wav synth 1.5 sine 300 vol 0.6
sox -R -n -b 24 -c 2 -r 48000 fo_src_24_2.wav synth 1.5 pinknoise vol 0.7
sox -R -n -b 8 -c 1 -r 11025 fo_src_8_1.wav synth 1.5 sine 220 vol 0.8
sox -R -n -b 8 -c 2 -r 8000 fo_src_8_2.wav synth 1 sine 220 sine 330 vol 0.8
sox -R -n -b 32 -c 2 -r 44100 fo_src_32_2.wav synth 0.5 sine 1000 vol 0.5
sox -R -n -b 16 -c 3 -r 44100 fo_src_16_3.wav synth 0.5 sine 500 sine 600 sine 700 vol 0.5

# FLAC in every width the reader takes, and two it refuses.
for w in 16_2 16_1 24_2 8_1 8_2 32_2 16_3; do
  flac -s -f --no-seektable --channel-map=none -o "flac_$w.flac" "fo_src_$w.wav" 2>/dev/null
done
for w in 16_2 16_1 24_2 8_1 8_2; do
  sign=signed
  case $w in 8_*) sign=unsigned ;; esac
  flac -s -f -d --force-raw-format --endian=little --sign=$sign -o "flac_$w.ref.raw" "flac_$w.flac" 2>/dev/null
done
# A stream that does not know its length: encoded to a pipe, the stream-info block keeps 0.
sox -R fo_src_16_2.wav -t raw - | flac -s --force-raw-format --endian=little --sign=signed \
  --channels=2 --bps=16 --sample-rate=44100 -c - 2>/dev/null > flac_total0.flac
# Damaged: cut in the middle; one byte flipped in the middle of the frames.
size=$(stat -c %s flac_16_2.flac)
head -c $((size / 2)) flac_16_2.flac > flac_truncated.flac
cp flac_16_2.flac flac_flipped.flac
printf '\xa5' | dd of=flac_flipped.flac bs=1 seek=$((size / 2)) conv=notrunc status=none
# Not FLAC at all.
cp fo_src_16_1.wav flac_notflac.flac

# Ogg Vorbis: fixed serial numbers keep the files the same from run to run.
oggenc -Q -s 101 -q 3 -o ogg_2.ogg fo_src_16_2.wav
oggenc -Q -s 102 -q 2 -o ogg_1.ogg fo_src_16_1.wav
oggenc -Q -s 103 -q 2 -o ogg_3.ogg fo_src_16_3.wav 2>/dev/null
cat ogg_2.ogg ogg_1.ogg > ogg_chained.ogg
for f in ogg_2 ogg_1 ogg_3; do oggdec -Q -R -o "$f.ref.raw" "$f.ogg"; done
# A hole: a stretch of pages taken out of the middle of a longer stream.
sox -R -n -b 16 -c 2 -r 44100 fo_src_long.wav synth 3 pinknoise vol 0.4
oggenc -Q -s 104 -q 3 -o ogg_long.ogg fo_src_long.wav
oggdec -Q -R -o ogg_long.ref.raw ogg_long.ogg
size=$(stat -c %s ogg_long.ogg)
{ head -c $((size / 2)) ogg_long.ogg; tail -c +$((size / 2 + size / 6)) ogg_long.ogg; } > ogg_hole.ogg
rm -f ogg_long.ogg

# WAV files for the conversion road, made and decoded by ffmpeg.
ffx() { ff -i "$1" -fflags +bitexact -flags +bitexact -map_metadata -1 "${@:2}"; }
ffx fo_src_16_2.wav -c:a adpcm_ima_wav conv_ima_2.wav
ffx fo_src_16_1.wav -c:a adpcm_ima_wav conv_ima_1.wav
ffx fo_src_16_2.wav -c:a adpcm_ms conv_msadpcm_2.wav
ffx fo_src_16_2.wav -c:a pcm_alaw conv_alaw_2.wav
ffx fo_src_16_1.wav -c:a pcm_mulaw conv_mulaw_1.wav
ffx fo_src_16_1.wav -ar 8000 -c:a libgsm_ms conv_gsm_1.wav
ffx fo_src_24_2.wav -c:a pcm_s24le conv_ext24_2.wav
ffx fo_src_16_2.wav -c:a pcm_f32le conv_extf32_2.wav
for f in ima_2 ima_1 msadpcm_2 alaw_2 mulaw_1 gsm_1; do
  ff -i "conv_$f.wav" -f s16le -c:a pcm_s16le "conv_$f.ref.raw"
done
ff -i conv_ext24_2.wav -f s24le -c:a pcm_s24le conv_ext24_2.ref.raw
ff -i conv_extf32_2.wav -f f32le -c:a pcm_f32le conv_extf32_2.ref.raw
# A format tag no decoder knows (0x1234 in place of PCM's 1).
cp fo_src_16_1.wav conv_unknown.wav
printf '\x34\x12' | dd of=conv_unknown.wav bs=1 seek=20 conv=notrunc status=none
rm -f fo_src_*.wav

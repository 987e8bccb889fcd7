# Test audio of the gain engine, with the reference figures of the ReplayGain reference
# analysis (metaflac --add-replay-gain) beside it in gain_ref.txt: one line per file,
# "name gainLeft gainRight", each channel measured as a FLAC holding that channel in
# both channels.
set -euo pipefail
cd "$FIXTURES"
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
ref="$tmp/gain_ref.txt"
: > "$ref"

# The reference gain of channel $2 of the WAV $1 (at $3 bits).
reference_gain() {
  sox "$1" -b "$3" "$tmp/ch.flac" remix "$2" "$2"
  metaflac --add-replay-gain "$tmp/ch.flac"
  metaflac --show-tag=REPLAYGAIN_TRACK_GAIN "$tmp/ch.flac" | sed 's/^[^=]*=//; s/ dB$//'
}

add_reference() {  # file bits [source for the reference]
  local src=${3:-$1}
  echo "$1 $(reference_gain "$src" 1 "$2") $(reference_gain "$src" 2 "$2")" >> "$ref"
}

# Every rate with a filter table: two channels that differ, pink noise and a quieter
# mix of a tone and white noise.
for rate in 8000 11025 12000 16000 18900 22050 24000 28000 32000 36000 37800 44100 48000; do
  sox -R -n -t wavpcm -b 16 -r "$rate" -c 2 "gain_$rate.wav" \
    synth 2 pinknoise whitenoise synth 2 sine mix 1000 remix 1v0.3 2v0.08
  add_reference "gain_$rate.wav" 16
done

# Rates without a table, measured at 48 kHz: tones, which the reference's own way to
# these rates (taking every second or fourth sample) leaves intact.
for rate in 96000 192000; do
  sox -R -n -t wavpcm -b 16 -r "$rate" -c 2 "gain_$rate.wav" synth 2 sine 2000 sine 5000 vol 0.3
  add_reference "gain_$rate.wav" 16
done

# Calibration: pink noise and a full-scale sine.
sox -R -n -t wavpcm -b 16 -r 44100 -c 2 gain_pink.wav synth 3 pinknoise vol 0.5
add_reference gain_pink.wav 16
sox -R -D -n -t wavpcm -b 16 -r 44100 -c 2 gain_sine_full.wav synth 2 sine 1000 vol 0.99997
add_reference gain_sine_full.wav 16

# Word sizes: the same samples at 24 and 32 bits and as float, and 8-bit samples with
# their exact 16-bit widening.
sox gain_44100.wav -t wavpcm -b 24 gain_44100_24.wav
sox gain_44100.wav -t wavpcm -b 32 -e signed-integer gain_44100_32.wav
sox gain_44100.wav -t wavpcm -b 32 -e floating-point gain_44100_f32.wav
sox -R -D -n -t wavpcm -b 8 -r 22050 -c 2 gain_8bit.wav synth 2 pinknoise brownnoise remix 1v0.5 2v0.2
sox gain_8bit.wav -t wavpcm -b 16 gain_8bit_16.wav

# Mono, and a rate without a table next to its tabled neighbour.
sox -R -n -t wavpcm -b 16 -r 44100 -c 1 gain_mono.wav synth 2 pinknoise vol 0.4
sox gain_mono.wav -t wavpcm gain_mono_dup.wav remix 1 1
echo "gain_mono.wav $(reference_gain gain_mono_dup.wav 1 16) $(reference_gain gain_mono_dup.wav 1 16)" >> "$ref"
sox -R -n -t wavpcm -b 16 -r 48000 -c 2 gain_tone_48000.wav synth 2 sine 1000 sine 3000 vol 0.3
sox -R -n -t wavpcm -b 16 -r 50000 -c 2 gain_tone_50000.wav synth 2 sine 1000 sine 3000 vol 0.3

# A sound shorter than one 50 ms block, and digital silence.
sox -R -n -t wavpcm -b 16 -r 44100 -c 2 gain_short.wav synth 0.02 sine 1000 vol 0.5
sox -R -D -n -t wavpcm -b 16 -r 44100 -c 2 gain_silence.wav trim 0 1

# MP3: the reference is the decoded audio (24-bit, as FFmpeg decodes it, gapless).
sox -R -n -t wavpcm -b 16 -r 44100 -c 2 "$tmp/mp3src.wav" synth 3 pinknoise brownnoise remix 1v0.3 2v0.15
lame --quiet -b 192 "$tmp/mp3src.wav" gain_stereo.mp3
ffmpeg -nostdin -v error -i gain_stereo.mp3 -fflags +bitexact -map_metadata -1 -c:a pcm_s24le "$tmp/dec.wav"
add_reference gain_stereo.mp3 24 "$tmp/dec.wav"
lame --quiet -m m -b 96 gain_mono.wav gain_mono.mp3
ffmpeg -nostdin -v error -i gain_mono.mp3 -fflags +bitexact -map_metadata -1 -c:a pcm_s24le "$tmp/decm.wav"
sox "$tmp/decm.wav" -t wavpcm "$tmp/decm2.wav" remix 1 1
echo "gain_mono.mp3 $(reference_gain "$tmp/decm2.wav" 1 24) $(reference_gain "$tmp/decm2.wav" 1 24)" >> "$ref"
# A clipped source: its decoded peaks pass full scale.
sox -R -D -n -t wavpcm -b 16 -r 44100 -c 2 "$tmp/clip.wav" synth 2 pinknoise gain 12 2>/dev/null
lame --quiet -b 128 "$tmp/clip.wav" gain_clipped.mp3

mv "$ref" gain_ref.txt

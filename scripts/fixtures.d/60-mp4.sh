# AAC and ALAC in MP4, raw ADTS with and without a leading ID3v2 tag. Deterministic: sox -R
# sources, bit-exact ffmpeg without metadata.
set -euo pipefail
cd "$FIXTURES"
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
ff() { ffmpeg -nostdin -loglevel error -y "$@"; }
enc() { ff -i "$1" -map_metadata -1 -fflags +bitexact -flags:a +bitexact "${@:3}" "$2"; }

# Sources: tones, noise and a stretch of silence (zero runs in ALAC), 2.3 s.
for bits in 16 24; do
  for ch in 1 2; do
    sox -R -n -b $bits -c $ch -r 44100 "$tmp/a.wav" synth 1 sine 440 sine 661 vol 0.8
    sox -R -n -b $bits -c $ch -r 44100 "$tmp/b.wav" synth 1 pinknoise vol 0.5
    sox -R "$tmp/a.wav" "$tmp/b.wav" "$tmp/src_${bits}_${ch}.wav" pad 0 0.3
  done
done
sox -R -n -b 16 -c 6 -r 48000 "$tmp/src_16_6.wav" synth 1.5 pinknoise vol 0.4

# Predictor orders: the encoder's default search, a fixed 8, and anything from 1 to 30.
enc "$tmp/src_16_1.wav" alac_16_mono.m4a -c:a alac
enc "$tmp/src_16_2.wav" alac_16_stereo.m4a -c:a alac -min_prediction_order 8 -max_prediction_order 8
enc "$tmp/src_24_1.wav" alac_24_mono.m4a -c:a alac -min_prediction_order 1 -max_prediction_order 30
enc "$tmp/src_24_2.wav" alac_24_stereo.m4a -c:a alac

# Without noise substitution: its noise is random in every decoder, so two decoders could
# not be compared.
enc "$tmp/src_16_1.wav" aac_mono.m4a -c:a aac -b:a 96k -aac_pns 0
enc "$tmp/src_16_2.wav" aac_stereo.m4a -c:a aac -b:a 128k -aac_pns 0
enc "$tmp/src_16_6.wav" aac_6ch.m4a -c:a aac -b:a 256k -aac_pns 0
enc "$tmp/src_16_2.wav" aac_adts.aac -c:a aac -b:a 128k -aac_pns 0 -f adts

# The same stream behind an ID3v2.3 tag with one title frame (22 bytes).
{ printf 'ID3\003\000\000\000\000\000\026'; printf 'TIT2\000\000\000\014\000\000\000Test title!'; cat aac_adts.aac; } > aac_id3.aac

# Small files with the movie in front, as seeds for the fuzz targets (their inputs are cut
# at 256 KiB, which would lose a movie at the end).
sox -R -n -b 16 -c 2 -r 44100 "$tmp/short.wav" synth 0.25 pinknoise vol 0.5
enc "$tmp/short.wav" alac_seed.m4a -c:a alac -movflags +faststart
enc "$tmp/short.wav" aac_seed.m4a -c:a aac -b:a 96k -aac_pns 0 -movflags +faststart

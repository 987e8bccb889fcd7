# Files for the peak scanner's cross-check: each word size, mono and stereo, the two
# channels at different levels. Kept below full scale so no sample is clipped.
set -euo pipefail
cd "$FIXTURES"
syn() { sox -R -n "$@" 2>/dev/null; }
syn -b 8 -c 2 -r 22050 peak_8_stereo.wav synth 0.5 whitenoise whitenoise remix 1v0.6 2v0.25
syn -b 16 -c 1 -r 44100 peak_16_mono.wav synth 0.5 pinknoise vol 0.4
syn -b 16 -c 2 -r 44100 peak_16_stereo.wav synth 0.5 whitenoise sine 440 remix 1v0.5 2v0.3
syn -b 24 -c 2 -r 48000 peak_24_stereo.wav synth 0.5 whitenoise whitenoise remix 1v0.7 2v0.2
syn -b 24 -c 1 -r 48000 peak_24_mono.wav synth 0.5 sine 1000 vol 0.8
syn -b 32 -e signed-integer -c 2 -r 44100 peak_32_stereo.wav synth 0.5 whitenoise sine 300 remix 1v0.45 2v0.9
syn -b 32 -e floating-point -c 2 -r 44100 peak_float_stereo.wav synth 0.5 whitenoise whitenoise remix 1v0.55 2v0.15
syn -b 32 -e floating-point -c 1 -r 44100 peak_float_mono.wav synth 0.5 sine 200 vol 0.66

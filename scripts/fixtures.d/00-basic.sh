# Basic PCM WAV files every module's tests may use. $FIXTURES is the output folder.
set -euo pipefail
cd "$FIXTURES"
# 1 s of a 1 kHz sine at half scale, 16-bit stereo 44.1 kHz.
sox -R -n -b 16 -c 2 -r 44100 sine_16_stereo.wav synth 1 sine 1000 vol 0.5
# 2 s of pink noise, 16-bit stereo, fixed seed.
sox -R -n -b 16 -c 2 -r 44100 pink_16_stereo.wav synth 2 pinknoise vol 0.3
sox -R -n -b 16 -c 1 -r 44100 sine_16_mono.wav synth 1 sine 440 vol 0.25

# WAV files of each accepted width and the refused and handed-over kinds. $FIXTURES is the
# output folder. "wavpcm" keeps the plain PCM format tag for widths above 16 bits.
set -euo pipefail
cd "$FIXTURES"
sox -R -n -b 8 -e unsigned-integer -c 1 -r 8000 -t wavpcm wav_pcm8_mono.wav synth 0.5 sine 440 vol 0.5
sox -R -n -b 24 -c 2 -r 48000 -t wavpcm wav_pcm24_stereo.wav synth 0.5 sine 440 vol 0.5
sox -R -n -b 32 -c 2 -r 44100 -t wavpcm wav_pcm32_stereo.wav synth 0.5 sine 440 vol 0.5
sox -R -n -b 32 -e floating-point -c 2 -r 44100 -t wavpcm wav_float32_stereo.wav synth 0.5 sine 440 vol 0.5
sox -R -n -b 64 -e floating-point -c 1 -r 44100 -t wavpcm wav_float64_mono.wav synth 0.5 sine 440 vol 0.5
sox -R -n -b 16 -c 4 -r 44100 -t wavpcm wav_pcm16_quad.wav synth 0.2 sine 440 vol 0.5
# 24-bit with the extensible header: takes the conversion road.
sox -R -n -b 24 -c 2 -r 48000 wav_ext24_stereo.wav synth 0.5 sine 440 vol 0.5
# MPEG Layer III inside RIFF (format tag 0x55).
ffmpeg -nostdin -loglevel error -y -f lavfi -i "sine=frequency=440:duration=1:sample_rate=44100" \
  -ac 2 -c:a libmp3lame -b:a 128k -fflags +bitexact -map_metadata -1 -f wav wav_mp3_in_riff.wav

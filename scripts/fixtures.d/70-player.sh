# Tones for the player: 2 s of 1 kHz at half scale in each kind the player may be handed
# (lossy ones at their best settings, so that the level stays within 1 %),
# and files it must refuse or survive.
set -euo pipefail
cd "$FIXTURES"
mkdir -p player
cd player
sox -R -n -b 16 -c 2 -r 44100 tone_1k.wav synth 2 sine 1000 vol 0.5
sox -R -n -b 16 -c 1 -r 22050 tone_1k_mono.wav synth 2 sine 1000 vol 0.5
sox -R -n -b 24 -c 2 -r 48000 tone_1k_24.wav synth 2 sine 1000 vol 0.5
flac -s -f --no-seektable -o tone_1k.flac tone_1k.wav
oggenc -Q -q 10 --serial 7 -o tone_1k.ogg tone_1k.wav
lame --quiet -b 320 --noreplaygain tone_1k.wav tone_1k.mp3
ffmpeg -nostdin -v error -y -i tone_1k.wav -c:a aac -b:a 320k -fflags +bitexact -map_metadata -1 tone_1k.m4a
# Ten seconds of noise as MP3, whose sound says unmistakably where in the file it is.
sox -R -n -b 16 -c 2 -r 44100 noise.wav synth 10 pinknoise vol 0.3
lame --quiet -b 192 --noreplaygain noise.wav noise.mp3
rm noise.wav
# 30 s of music-like noise for the cost of playing a FLAC work file.
sox -R -n -b 16 -c 2 -r 44100 long.wav synth 30 pinknoise vol 0.3
flac -s -f -o long.flac long.wav
# A header and no samples; garbage; a WAV cut in its header.
sox -R -n -b 16 -c 2 -r 44100 empty.wav trim 0 0
head -c 4000 /dev/zero | tr '\0' 'x' > garbage.wav
head -c 30 tone_1k.wav > cut_header.wav
# A FLAC file with 20 kB of its middle overwritten: damaged frames to skip.
cp tone_1k.flac damaged.flac
dd if=/dev/zero of=damaged.flac bs=1 seek=30000 count=20000 conv=notrunc status=none

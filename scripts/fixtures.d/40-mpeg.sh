# MPEG audio files for the MPEG reader: constant and variable rates, with and without a
# Xing/Info frame, MPEG 2 and 2.5 rates, Layer II, and tags at both ends.
set -euo pipefail
cd "$FIXTURES"
mkdir -p mpeg
cd mpeg

# Sources: a quiet tone that turns into noise, so a variable-rate encoder changes its rate.
sox -R -n -b 16 -c 2 -r 44100 tone.wav synth 0.6 sine 440 vol 0.05
sox -R -n -b 16 -c 2 -r 44100 noise.wav synth 1.6 whitenoise vol 0.5
sox -R tone.wav noise.wav src_stereo.wav
sox -R src_stereo.wav -c 1 src_mono.wav
rm -f tone.wav noise.wav

L="lame --quiet --noreplaygain"
$L -b 128 -t src_stereo.wav cbr128.mp3            # constant rate, no Info frame
$L -b 128 src_stereo.wav cbr128_info.mp3          # constant rate with an "Info" frame
$L -V 2 src_stereo.wav vbr_xing.mp3               # "Xing" frame and LAME tag
$L -V 2 -t src_stereo.wav vbr_noxing.mp3          # variable rate, nothing to say so
$L -m m -b 64 -t src_mono.wav mono64.mp3
$L -m m -V 4 src_mono.wav mono_vbr_xing.mp3
$L -m s -b 160 -t src_stereo.wav stereo160.mp3    # plain stereo mode
$L -m j -b 64 -t --resample 22.05 src_stereo.wav mpeg2_22050.mp3
$L -m j -b 48 -t --resample 16 src_stereo.wav mpeg2_16000.mp3
$L -m j -b 32 -t --resample 11.025 src_stereo.wav mpeg25_11025.mp3
$L -m j -b 16 -t --resample 8 src_stereo.wav mpeg25_8000.mp3
$L -b 128 -t --id3v2-only --pad-id3v2-size 300 --tt "Prøve" --ta Tonvane src_stereo.wav id3v2_start.mp3
$L -b 128 -t --id3v1-only --tt Title --tn 7 src_stereo.wav id3v1.mp3
ffmpeg -v error -i src_stereo.wav -fflags +bitexact -flags +bitexact -map_metadata -1 -c:a mp2 -b:a 192k -f mp2 -y layer2.mp3
ffmpeg -v error -i src_mono.wav -fflags +bitexact -flags +bitexact -map_metadata -1 -c:a mp2 -b:a 96k -f mp2 -y layer2_mono.mp3
# MPEG Layer III inside RIFF (format tag 0x55).
ffmpeg -v error -i src_stereo.wav -fflags +bitexact -flags +bitexact -map_metadata -1 -c:a libmp3lame -b:a 128k -f wav -y layer3_in_riff.wav

# --- Tags written byte by byte behind or before the audio of cbr128.mp3.
byte() { printf "\\$(printf '%03o' $(($1 & 255)))"; }
le32() { byte $1; byte $(($1 >> 8)); byte $(($1 >> 16)); byte $(($1 >> 24)); }
syncsafe() { byte $(($1 >> 21 & 127)); byte $(($1 >> 14 & 127)); byte $(($1 >> 7 & 127)); byte $(($1 & 127)); }
# ID3v1.1: "TAG", title, artist, album, year, a 28-byte comment, 0, track 3, genre.
id3v1() {
  printf 'TAG%-30s%-30s%-30s%-4s' "Song" "Band" "Record" "1999"
  head -c 28 /dev/zero; printf '\x00\x03\x0c'
}
# APEv2 with a header and one item.
ape_item() { le32 5; le32 0; printf 'Title\0Words'; }
ape_block() {  # $1 = flags of the footer; the header is written when $2 = header
  local items=$(( 8 + 6 + 5 ))
  local size=$(( items + 32 ))
  if [ "${2:-}" = header ]; then
    printf APETAGEX; le32 2000; le32 $size; le32 1; le32 $((0x80000000 | 0x20000000)); head -c 8 /dev/zero
  fi
  ape_item
  printf APETAGEX; le32 2000; le32 $size; le32 1; le32 $1; head -c 8 /dev/zero
}
ape_v1() {  # version 1: no header, the size counts items and footer
  local size=$(( 8 + 6 + 5 + 32 ))
  ape_item
  printf APETAGEX; le32 1000; le32 $size; le32 1; le32 0; head -c 8 /dev/zero
}
{ cat cbr128.mp3; ape_block $((0x80000000)) header; id3v1; } > ape_then_id3v1.mp3
{ cat cbr128.mp3; id3v1; ape_block $((0x80000000)) header; } > id3v1_then_ape.mp3
{ cat cbr128.mp3; ape_v1; } > apev1_end.mp3
{ ape_block $((0x80000000)) header; cat cbr128.mp3; } > ape_start.mp3
# Lyrics3 v2: fields, their size in 6 digits, "LYRICS200"; then ID3v1 behind it.
lyr2_body="LYRICSBEGININD00002110LYR00011Hello world"
{ cat cbr128.mp3; printf '%s%06d' "$lyr2_body" ${#lyr2_body}; printf 'LYRICS200'; id3v1; } > lyrics3v2.mp3
# Lyrics3 v1: "LYRICSBEGIN" text "LYRICSEND".
{ cat cbr128.mp3; printf 'LYRICSBEGINSome words to sing along toLYRICSEND'; id3v1; } > lyrics3v1.mp3
# ID3v2.4 with a footer, at the start and at the end.
id3v24() {  # one text frame of 5 bytes, the footer flag set
  printf 'ID3\4\0\20'; syncsafe 15
  printf 'TIT2\0\0\0\5\0\0\3Song'
  printf '3DI\4\0\20'; syncsafe 15
}
{ id3v24; cat cbr128.mp3; } > id3v2_footer_start.mp3
{ cat cbr128.mp3; id3v24; } > id3v2_footer_end.mp3
{ id3v24; cat cbr128.mp3; id3v24; } > id3v2_both_ends.mp3
rm -f src_mono.wav src_stereo.wav

# Small test logs, the seeds of the CSV fuzzer. The first byte picks the fuzzer's road:
# "0" the CSV engine over a whole file, "1" the log store over records behind its header.
set -euo pipefail
cd "$FIXTURES"
mkdir -p testlog
header='"FileName","Year","Month","Day","Hour","Minute","Second","DayOfWeek","GainLeft","GainRight","NoClippingLeft","NoClippingRight","WavLeft","WavRight","WavPikLeft","WavPikRight","WavPikNoClippingLeft","WavPikNoClippingRight"'
blanks=$(printf '%100s' '')
row1='/music/a.wav,2021,3,4,5,6,7,5,400.000000,400.000000,400.000000,400.000000,50.000000,60.000000,400.000000,400.000000,400.000000,400.000000'
row2='"/music/a,b ""c"".flac",2021,3,4,5,6,7,5,85.500000,86.250000,-1.500000,0.000000,-1.000000,-1.000000,-6.000000,-4.400000,0.000000,0.000000'
row3='/music/x.mp3,2021,3,4,5,6,7,5,89.000000,88.000000,0.500000,0.000000,0,0,0,0,0,0'
printf '0\xEF\xBB\xBF%s\r\n%s\r\n%s\r\n%s\r\n%s\r\n' "$header" "$row1" "$blanks" "$row2" "$blanks" > testlog/engine-two.csv
printf '0\xEF\xBB\xBF%s\r\n"open quote\r\nrow,"two\r\nlines",x\r\n1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19\r\n' "$header" > testlog/engine-junk.csv
printf '1%s\r\n%s\r\n%s\r\n%s\r\n%s\r\n%s\r\n' "$row1" "$blanks" "$row2" "$blanks" "$row3" "$blanks" > testlog/store-three.csv
printf '1%s\r\n%s\r\n\xFF\xFE junk,\x80\r\n%s' "$row1" "$blanks" "${row3:0:40}" > testlog/store-cut.csv

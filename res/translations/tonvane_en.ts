<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pla&amp;yer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>50</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> The file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>   </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VBR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CBR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>carry out data-file-mapping to the process&apos;s address space is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> kB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open      </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100% = 41 dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100% = 137 dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100% = 185 dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mono Channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100% = </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Level </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

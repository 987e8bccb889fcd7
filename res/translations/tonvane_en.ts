<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation type="unfinished"></translation>
    </message>
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
        <source> was not possible to fulfill.</source>
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
        <source>Russian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>German</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>French</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Italian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Danish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Czech</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Windows XP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Office XP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;ffice 2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off&amp;ice 2003</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mp3, Wav (MPEG 1.0 Layer III)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mp4, M4a, M4b, M4p, M4r (AAC, ALAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wav (Microsoft Wave RIFF)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLAC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ogg Vorbis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APE (Monkey’s Audio)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batch Processor - Tonvane 1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Playback</source>
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
        <source>P&amp;revious</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options</source>
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
        <source>Use &amp;All Processor Cores</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
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
        <source>Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
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
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exit</source>
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
        <source>&amp;Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute</source>
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
        <source>&amp;Beep when finished</source>
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
        <source> Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clipping</source>
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
        <source>Don&apos;t show again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
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
        <source> cannot be created.</source>
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
        <source>Sorry, but the test is stopped as the file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
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
        <source>Wave Files (*.wav; *.wave)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
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
        <source>  Channels            </source>
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
    <message>
        <source>No sound device is available.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>№</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> TB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> not tested</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> tested</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Total:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> hr </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> min </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> sec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> from </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Joint Stereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Dual Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Mono</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PCM IEEE Float</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PCM (Pulse-Code Modulation)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG-4 AAC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG-2 AAC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG4 ALAC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLAC (Free Lossless Audio Codec)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ABR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APE Monkey&apos;s Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

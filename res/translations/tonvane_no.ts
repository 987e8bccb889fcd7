<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Dette programmet er fri programvare under GNU General Public License, versjon 2 eller senere. Det leveres uten noen form for garanti.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Filen kopieres</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: ikke mulig, fordi filen ikke finnes.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: ikke mulig, fordi stien til filen ikke finnes.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, fordi for mange filer er åpne.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: ikke mulig, fordi tilgang til filen er nektet.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: ikke mulig, fordi navnet på filen, mappen eller disken er ugyldig.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: ikke mulig, fordi filnavnet eller filtypen er for lang.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: ikke mulig, fordi systemet ikke får tilgang til filen.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>Beklager: </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>filen </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> ikke mulig. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> kan ikke åpnes</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Beklager, denne filtypen støttes ikke.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Beklager: filen </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Beklager, topptesten er ikke tilgjengelig for MP3-filer; bruk gjennomsnittstesten.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Beklager: filen </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> har feil. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Beklager: testen av filen </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> mislyktes.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Testen er stoppet</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>Testen ble stoppet fordi filen ikke ble åpnet for den.
Vil du velge en fil?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Volumnivået testes</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Beklager, testen ble stoppet fordi det ikke gikk å lage en midlertidig kopi av filen </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>Testen ble stoppet fordi filen har feil.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russisk</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Engelsk</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Tysk</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spansk</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Fransk</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiensk</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Nederlandsk</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugisisk</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Norsk</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Dansk</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Tyrkisk</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polsk</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Kroatisk</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Kinesisk</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreansk</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Tsjekkisk</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Slovensk</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Start programmet på nytt for å bytte språk i grensesnittet.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Beklager, en kopi av dette programmet kjører allerede. Denne kopien blir derfor ikke startet.</translation>
    </message>
    <message>
        <source>&amp;Windows XP</source>
        <translation>&amp;Windows XP</translation>
    </message>
    <message>
        <source>&amp;Office XP</source>
        <translation>&amp;Office XP</translation>
    </message>
    <message>
        <source>O&amp;ffice 2000</source>
        <translation>O&amp;ffice 2000</translation>
    </message>
    <message>
        <source>Off&amp;ice 2003</source>
        <translation>Off&amp;ice 2003</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translation>&amp;Grå</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>Om Tonvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versjon %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Måler hvor høye lydfiler er: toppnivået og gjennomsnittsnivået i forhold til referansen på 89 dB.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-post:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Nettsted:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Biblioteker i bruk:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Vent litt, filer søkes etter</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>Behandler: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Filliste</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Tilpass alle kolonner</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Tilpass kolonnen</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Satsvis behandling...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Test av filen:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Satsvis test...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Forventet ferdig:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>Listen som behandles inneholder:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Lukk vinduet når den satsvise behandlingen er ferdig</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Testet:</translation>
    </message>
    <message>
        <source>Mp3, Wav (MPEG 1.0 Layer III)</source>
        <translation>Mp3, Wav (MPEG 1.0 Layer III)</translation>
    </message>
    <message>
        <source>Mp4, M4a, M4b, M4p, M4r (AAC, ALAC)</source>
        <translation>Mp4, M4a, M4b, M4p, M4r (AAC, ALAC)</translation>
    </message>
    <message>
        <source>Wav (Microsoft Wave RIFF)</source>
        <translation>Wav (Microsoft Wave RIFF)</translation>
    </message>
    <message>
        <source>FLAC</source>
        <translation>FLAC</translation>
    </message>
    <message>
        <source>Ogg Vorbis</source>
        <translation>Ogg Vorbis</translation>
    </message>
    <message>
        <source>APE (Monkey’s Audio)</source>
        <translation>APE (Monkey’s Audio)</translation>
    </message>
    <message>
        <source>Batch Processor - Tonvane 1.0</source>
        <translation>Satsvis behandling - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Hvilken type satsvis behandling vil du åpne?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Type satsvis behandling</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Maksimer vinduet for satsvis behandling</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Mappe:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Bla gjennom...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Dra filer eller mapper hit (eller trykk Legg til filer, Legg til mappe eller Legg til mapper). Programmet velger selv bare støttede filer.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> Listen inneholder: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Totalt kontrollert: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fil</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>Legg til &amp;filer...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>Legg til &amp;mappe...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>Legg til m&amp;apper...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>Legg til &amp;spillelister...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Lukk</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Rediger</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>Flytt &amp;ned</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Flytt &amp;opp</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>M&amp;erk alle</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>Fjern mer&amp;king</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>F&amp;jern</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Fjern a&amp;lle</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>Ha&amp;ndlinger</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Avspilling</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Spill av / &amp;pause</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>S&amp;topp</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Volum</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Opp</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ned</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>&amp;Forrige</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Neste</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Vindu</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>&amp;Alltid øverst</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Innstillinger</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>&amp;Bruk database</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>Tø&amp;m database</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>&amp;Database...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Bruk alle &amp;prosessorkjerner</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hjelp</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Hjelp for Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Verktøylinje</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Legg til filer (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Legg til mappe (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Legg til mapper (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Legg til spillelister (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Flytt ned (Alt+Ned)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Flytt opp (Alt+Opp)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Merk alle (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Fjern merking (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Fjern (Del)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Fjern alle (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Hjelp (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Lukk (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Test toppnivå</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Test gjennomsnittsnivå</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Satsvis test</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spiller</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Vent litt, fillisten klargjøres</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Legg til filer </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Legg til spillelister</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Velg mappen</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Legg til mappe - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Velg mappene</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Legg til mapper - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Beklager, du har ikke valgt noen fil. Velg en fil.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Database - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Største størrelse på databasen:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Gjeldende størrelse på databasen: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Tøm</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bit per sampel</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Kanaler</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Frekvens</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Lydformat</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Størrelse</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mer</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Åpne...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Avslutt</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>&amp;Satsvis behandling...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Vis</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation>&amp;Spiller</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Demp</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>Tilfel&amp;dig</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>&amp;Gjenta</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>Gjenta &amp;alle</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Pip når ferdig</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Hjelp for Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Åpne Tonvanes &amp;nettsted</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>&amp;Om Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åpne</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Åpne (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Sats</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Satsvis behandling (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Avslutt (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Filnavn:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Egenskaper</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Overstyring</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posisjon</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Spill av / pause (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Stopp (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Tilfeldig (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Gjenta (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Demp (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Forrige (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Neste (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volum</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>50</source>
        <translation>50</translation>
    </message>
    <message>
        <source>100</source>
        <translation>100</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Tid:</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>Total tid:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Test av volumnivået</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Ikke vis igjen</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Språk</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Temaer</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Beklager, hjelpen til programmet er ikke installert.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Beklager, hjelpesiden %1 kan ikke åpnes.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Feil ved oppstart av dekoderbiblioteket faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>det finnes ikke et gyldig AAC-lydspor i MP4-filen.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>Lesing fra MP4-filen mislyktes.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> kan ikke opprettes.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> har et lyddataformat som programmet ikke støtter.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> Filen har mer enn 2 kanaler.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> er tom og inneholder ingen lyddata.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>Åpningen ble stoppet fordi filen har feil.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> lage en minneavbildning av filen er ikke mulig</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Testen blir derfor stoppet.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Den er laget av en versjon av Monkey&apos;s Audio eldre enn 3.99, som programmet ikke dekoder.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. Den er ikke en Monkey&apos;s Audio-fil, eller hodet er skadet.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Beklager, det oppstod en feil ved åpning av dekodingsstrømmen.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> Filen </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> slutter midt i lyddataene.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> er skadet: lyddataene består ikke kontrollen.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Lydformat       APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Beklager, testen ble stoppet fordi filen </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> er tom og inneholder ingen lyddata. Velg en annen fil.
Vil du velge en fil?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>En feil i strømmen fikk dekoderen til å miste synkroniseringen.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>Dekoderen fant et skadet rammehode.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> Dataene i rammen stemmer ikke med CRC-en på slutten.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>Dekoderen fant reserverte felt i bruk i strømmen.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Lydformat       FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Wave-filer (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Satsvis behandling av Wav - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> inneholder ingen Wav-filer.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>MP3-filer (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Satsvis behandling av Mp3 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> inneholder ingen Mp3-filer.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>FLAC-filer (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>Satsvis behandling av FLAC - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> inneholder ingen FLAC-filer.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Ogg-filer (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Satsvis behandling av Ogg - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> inneholder ingen Ogg-filer.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>APE-filer (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>Satsvis behandling av APE - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> inneholder ingen APE-filer.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>AAC/ALAC-filer (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Satsvis behandling av Mp4 (AAC, ALAC) - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> inneholder ingen Mp4-filer.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle filer (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>M3U-spilleliste (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Bitrate         </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kbit/s</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Kanaler         </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Frekvens        </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Lydformat       MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Lydformat       MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Lydformat       MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> kunne ikke utføres.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Bitrate         </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Modus           Stereo</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Modus           Joint stereo</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Modus           Dobbel kanal</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Modus           Mono</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>Kodingsmetode</translation>
    </message>
    <message>
        <source>   </source>
        <translation>   </translation>
    </message>
    <message>
        <source>VBR</source>
        <translation>VBR</translation>
    </message>
    <message>
        <source>CBR</source>
        <translation>CBR</translation>
    </message>
    <message>
        <source>carry out data-file-mapping to the process&apos;s address space is</source>
        <translation>avbilde filen i prosessens adresserom er</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Størrelse       </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>lage en kopi av beskriveren for å kopiere filen er</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> inneholder ingen lyddata. Testen er derfor ikke mulig.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Lydformat       Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>Beklager, filnavnet er ugyldig. Velg en annen fil.
Vil du velge en fil?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>Beklager, filnavn med filtypen &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> støttes ikke av programmet. Velg en annen fil.
Vil du velge en fil?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> byte</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> GB</translation>
    </message>
    <message>
        <source>Open      </source>
        <translation>Åpne      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> har et lyddataformat som programmet ikke støtter. Testen er derfor ikke mulig. Velg en annen fil.
Vil du velge en fil?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bit per sampel  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Kanaler         </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Frekvens        </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>En strøm for datakonvertering kunne ikke åpnes</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Lydformat       PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Testen er derfor ikke mulig. Velg en annen fil.
Vil du velge en fil?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, er tom og inneholder ingen lyddata.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> inneholder ikke lyddata som er typiske for Wav-filer.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bit per sampel  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bit per sampel  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bit per sampel  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bit per sampel  32</translation>
    </message>
    <message>
        <source>100% = 41 dB</source>
        <translation>100% = 41 dB</translation>
    </message>
    <message>
        <source>100% = 137 dB</source>
        <translation>100% = 137 dB</translation>
    </message>
    <message>
        <source>100% = 185 dB</source>
        <translation>100% = 185 dB</translation>
    </message>
    <message>
        <source>Mono Channel</source>
        <translation>Monokanal</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>Venstre kanal</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>Høyre kanal</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>lage objektet for minneavbildning er ikke mulig</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Kanaler         1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Kanaler         2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Lydformat       PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>Beklager: for filen </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> flytte gjeldende posisjon i filen er ikke mulig. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Lagringen blir derfor stoppet.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Beklager, det oppstod en skrivefeil i utdatafilen: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Beklager, programmet kan ikke fortsette med filen: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Maksimalt nivå</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Volumnivå</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(toppnivå)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(gjennomsnittsnivå)</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>100% = </source>
        <translation>100% = </translation>
    </message>
    <message>
        <source>Max Level </source>
        <translation>Maks. nivå </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> åpne en midlertidig kopi av filen </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Beklager, det oppstod en feil ved åpning av filen &quot;TestLog.csv&quot;.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>Databasen er tømt</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Ingen lydenhet er tilgjengelig.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Volum&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Forrige&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Neste&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Gjenta&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Posisjon&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Spill av&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Stopp&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Demp&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Tilfeldig&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Ingen feil.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Fant ingen ledig kanal for å spille av lyden. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>Kanalen er brukt på nytt til å spille en annen lyd. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Feil ved lasting av filen. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Kunne ikke hoppe til posisjonen. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>Filen slutter før noe lyd kunne leses. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Fant ikke filen. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Fil- eller lydformatet støttes ikke. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>Lydsystemet er ikke klart for dette kallet. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Et ugyldig objekthåndtak ble brukt. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>En ugyldig parameter ble gitt til denne funksjonen. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>En ugyldig posisjon ble gitt til denne funksjonen. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Ikke nok minne eller ressurser. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Feil ved oppstart av lydutgangsenheten. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>Lydsystemet er ikke startet ennå. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Ukjent feil.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> finnes ikke.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Beklager: mappen </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> kan ikke leses: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Forsterkning</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Varighet</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Frekvens</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanaler</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Lydformat</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Bit</translation>
    </message>
    <message>
        <source> TB</source>
        <translation> TB</translation>
    </message>
    <message>
        <source> not tested</source>
        <translation> ikke testet</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nei</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> testet</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Totalt:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Størrelse: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Frekvens: </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>Bit: </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>Kanaler: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Varighet: </translation>
    </message>
    <message>
        <source> file</source>
        <translation> fil</translation>
    </message>
    <message>
        <source> files</source>
        <translation> filer</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Total varighet: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Beklager, du har ikke valgt noen filer. Den satsvise testen blir derfor stoppet.</translation>
    </message>
    <message>
        <source> hr </source>
        <translation> t </translation>
    </message>
    <message>
        <source> min </source>
        <translation> min </translation>
    </message>
    <message>
        <source> sec</source>
        <translation> s</translation>
    </message>
    <message>
        <source> from </source>
        <translation> av </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> fullført</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Vent litt, satsvis test pågår</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Testen er stanset</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Testen er avbrutt</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Beklager: den åpne mappen </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Beklager, testen av volumnivået ble stoppet fordi filen </translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> Stereo</translation>
    </message>
    <message>
        <source> Joint Stereo</source>
        <translation> Joint stereo</translation>
    </message>
    <message>
        <source> Dual Channels</source>
        <translation> Dobbel kanal</translation>
    </message>
    <message>
        <source> Mono</source>
        <translation> Mono</translation>
    </message>
    <message>
        <source>PCM IEEE Float</source>
        <translation>PCM IEEE Float</translation>
    </message>
    <message>
        <source>PCM (Pulse-Code Modulation)</source>
        <translation>PCM (pulskodemodulasjon)</translation>
    </message>
    <message>
        <source>MPEG-4 AAC</source>
        <translation>MPEG-4 AAC</translation>
    </message>
    <message>
        <source>MPEG-2 AAC</source>
        <translation>MPEG-2 AAC</translation>
    </message>
    <message>
        <source>MPEG4 ALAC</source>
        <translation>MPEG4 ALAC</translation>
    </message>
    <message>
        <source>FLAC (Free Lossless Audio Codec)</source>
        <translation>FLAC (Free Lossless Audio Codec)</translation>
    </message>
    <message>
        <source>ABR</source>
        <translation>ABR</translation>
    </message>
    <message>
        <source>APE Monkey&apos;s Audio</source>
        <translation>APE Monkey&apos;s Audio</translation>
    </message>
    <message>
        <source>Left: </source>
        <translation>Venstre: </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation>; Høyre: </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>Monokanal: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>Beklager, hjemmesiden %1 kan ikke åpnes.</translation>
    </message>
</context>
</TS>

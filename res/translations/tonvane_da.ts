<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Dette program er fri software under GNU General Public License, version 2 eller senere. Det leveres uden nogen form for garanti.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Filen kopieres</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: ikke muligt, fordi filen ikke findes.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: ikke muligt, fordi stien til filen ikke findes.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, fordi for mange filer er åbne.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: ikke muligt, fordi adgang til filen er nægtet.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: ikke muligt, fordi navnet på filen, mappen eller drevet er ugyldigt.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: ikke muligt, fordi filnavnet eller filtypen er for lang.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: ikke muligt, fordi systemet ikke kan få adgang til filen.</translation>
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
        <translation> ikke muligt. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> kan ikke åbnes</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Beklager, denne filtype understøttes ikke.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Beklager: filen </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Beklager, spidsniveautesten findes ikke for MP3-filer; brug testen af gennemsnitsniveau.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Beklager: filen </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> har fejl. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Beklager: testen af filen </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> mislykkedes.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Testen er stoppet</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>Testen blev stoppet, fordi filen ikke blev åbnet til den.
Vil du vælge en fil?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Lydniveauet testes</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Beklager, testen blev stoppet, fordi der ikke kunne oprettes en midlertidig kopi af filen </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>Testen blev stoppet, fordi filen har fejl.</translation>
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
        <translation>Tjekkisk</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Slovensk</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Genstart programmet for at skifte sprog i brugerfladen.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Beklager, en kopi af dette program kører allerede. Denne kopi bliver derfor ikke startet.</translation>
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
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Måler, hvor høje lydfiler er: spidsniveauet og gennemsnitsniveauet i forhold til referencen på 89 dB.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Websted:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Anvendte biblioteker:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Vent venligst, der søges efter filer</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
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
        <translation>Tilpas alle kolonner</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Tilpas kolonnen</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Batchbehandling...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Test af filen:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Batchtest...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Forventet færdig:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>Listen til behandling indeholder:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Luk vinduet, når batchbehandlingen er færdig</translation>
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
        <translation>Batchbehandling - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Hvilken type batchbehandling vil du åbne?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Type batchbehandling</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Maksimer vinduet til batchbehandling</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Mappe:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Gennemse...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Træk filer eller mapper hertil (eller tryk Tilføj filer, Tilføj mappe eller Tilføj mapper). Programmet vælger selv kun understøttede filer.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> Listen indeholder: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Kontrolleret i alt: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fil</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>Tilføj &amp;filer...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>Tilføj &amp;mappe...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>Tilføj m&amp;apper...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>Tilføj afs&amp;pilningslister...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Luk</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>R&amp;ediger</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>Flyt &amp;ned</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Flyt &amp;op</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>Markér a&amp;lle</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>Fjern mar&amp;keringer</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Fje&amp;rn</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Fjern all&amp;e</translation>
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
        <translation>Af&amp;spilning</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Afspil / &amp;pause</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>S&amp;top</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Lydstyrke</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Op</translation>
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
        <translation>&amp;Næste</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Vindue</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>&amp;Altid øverst</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Indstillinger</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>Brug &amp;database</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>&amp;Ryd database</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>Databa&amp;se...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Brug alle &amp;processorkerner</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hjælp</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Hjælp til Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Værktøjslinje</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Tilføj filer (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Tilføj mappe (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Tilføj mapper (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Tilføj afspilningslister (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Flyt ned (Alt+Ned)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Flyt op (Alt+Op)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Markér alle (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Fjern markeringer (Ctrl+B)</translation>
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
        <translation>Hjælp (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Luk (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Test spidsniveau</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Test gennemsnitsniveau</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Batchtest</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Afspiller</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Vent venligst, fillisten forberedes</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Tilføj filer </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Tilføj afspilningslister</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Vælg mappen</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Tilføj mappe - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Vælg mapperne</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Tilføj mapper - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Beklager, du har ikke valgt nogen fil. Vælg en fil.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Database - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Databasens største størrelse:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Databasens aktuelle størrelse: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Ryd</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bit pr. sample</translation>
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
        <translation>Mere</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Åbn...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>A&amp;fslut</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>&amp;Batchbehandling...</translation>
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
        <translation>&amp;Afspiller</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Lydløs</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>Tilf&amp;ældig</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>&amp;Gentag</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>Gentag &amp;alle</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Bip når færdig</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Hjælp til Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Åbn Tonvanes &amp;websted</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>&amp;Om Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åbn</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Åbn (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Batch</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Batchbehandling (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Afslut (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Filnavn:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Egenskaber</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Overstyring</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Afspil / pause (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Stop (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Tilfældig (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Gentag (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Lydløs (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Forrige (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Næste (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lydstyrke</translation>
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
        <translation>Samlet tid:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Test af lydniveauet</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Vis ikke igen</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Sprog</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Temaer</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Beklager, programmets hjælp er ikke installeret.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Beklager, hjælpesiden %1 kan ikke åbnes.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Fejl ved start af dekoderbiblioteket faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>der findes intet gyldigt AAC-lydspor i MP4-filen.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>Læsning fra MP4-filen mislykkedes.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> kan ikke oprettes.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> har et lyddataformat, som programmet ikke understøtter.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> Filen har mere end 2 kanaler.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> er tom og indeholder ingen lyddata.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>Åbningen blev stoppet, fordi filen har fejl.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> oprette en hukommelsesafbildning af filen er ikke muligt</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Testen bliver derfor stoppet.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Den er lavet med en version af Monkey&apos;s Audio ældre end 3.99, som programmet ikke afkoder.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. Det er ikke en Monkey&apos;s Audio-fil, eller dens header er beskadiget.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Beklager, der opstod en fejl ved åbning af afkodningsstrømmen.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> Filen </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> slutter midt i sine lyddata.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> er beskadiget: dens lyddata består ikke kontrollen.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Lydformat       APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Beklager, testen blev stoppet, fordi filen </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> er tom og indeholder ingen lyddata. Vælg en anden fil.
Vil du vælge en fil?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>En fejl i strømmen fik dekoderen til at miste synkroniseringen.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>Dekoderen stødte på en beskadiget rammeheader.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> Rammens data passer ikke med CRC&apos;en i slutningen.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>Dekoderen stødte på reserverede felter i brug i strømmen.</translation>
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
        <translation>Batchbehandling af Wav - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> indeholder ingen Wav-filer.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>MP3-filer (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Batchbehandling af Mp3 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> indeholder ingen Mp3-filer.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>FLAC-filer (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>Batchbehandling af FLAC - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> indeholder ingen FLAC-filer.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Ogg-filer (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Batchbehandling af Ogg - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> indeholder ingen Ogg-filer.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>APE-filer (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>Batchbehandling af APE - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> indeholder ingen APE-filer.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>AAC/ALAC-filer (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Batchbehandling af Mp4 (AAC, ALAC) - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> indeholder ingen Mp4-filer.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle filer (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>M3U-afspilningsliste (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Bithastighed    </translation>
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
        <translation> kunne ikke udføres.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Bithastighed    </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Tilstand        Stereo</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Tilstand        Joint stereo</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Tilstand        Dobbelt kanal</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Tilstand        Mono</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>Kodningsmetode</translation>
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
        <translation>afbilde filen i processens adresserum er</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Størrelse       </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>oprette en kopi af beskriveren til kopiering af filen er</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> indeholder ingen lyddata. Testen er derfor ikke mulig.</translation>
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
        <translation>Beklager, filnavnet er ugyldigt. Vælg en anden fil.
Vil du vælge en fil?</translation>
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
        <translation> understøttes ikke af programmet. Vælg en anden fil.
Vil du vælge en fil?</translation>
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
        <translation>Åbn      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> har et lyddataformat, som programmet ikke understøtter. Testen er derfor ikke mulig. Vælg en anden fil.
Vil du vælge en fil?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bit pr. sample  </translation>
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
        <translation>En strøm til datakonvertering kunne ikke åbnes</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Lydformat       PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Testen er derfor ikke mulig. Vælg en anden fil.
Vil du vælge en fil?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, er tom og indeholder ingen lyddata.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> indeholder ikke lyddata, der er typiske for Wav-filer.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bit pr. sample  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bit pr. sample  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bit pr. sample  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bit pr. sample  32</translation>
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
        <translation>Højre kanal</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>oprette objektet til hukommelsesafbildning er ikke muligt</translation>
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
        <translation> flytte den aktuelle position i filen er ikke muligt. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Gemningen bliver derfor stoppet.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Beklager, der opstod en skrivefejl i outputfilen: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Beklager, programmet kan ikke fortsætte med filen: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Maksimalt niveau</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Lydniveau</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(spidsniveau)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(gennemsnitsniveau)</translation>
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
        <translation>Maks. niveau </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> åbne en midlertidig kopi af filen </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Beklager, der opstod en fejl ved åbning af filen &quot;TestLog.csv&quot;.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>Databasen er ryddet</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Der er ingen tilgængelig lydenhed.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Lydstyrke&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Forrige&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Næste&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Gentag&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Position&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Afspil&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Lydløs&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Tilfældig&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Ingen fejl.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Der blev ikke fundet en ledig kanal til at afspille lyden. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>Kanalen er genbrugt til at afspille en anden lyd. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Fejl ved indlæsning af filen. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Kunne ikke springe til positionen. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>Filen slutter, før der kunne læses nogen lyd. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Filen blev ikke fundet. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Fil- eller lydformatet understøttes ikke. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>Lydsystemet er ikke klar til dette kald. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Et ugyldigt objekthåndtag blev brugt. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>En ugyldig parameter blev givet til denne funktion. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>En ugyldig position blev givet til denne funktion. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Ikke nok hukommelse eller ressourcer. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Fejl ved start af lydudgangsenheden. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>Lydsystemet er ikke startet endnu. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Ukendt fejl.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> findes ikke.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Beklager: mappen </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> kan ikke læses: </translation>
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
        <translation>Forstærkning</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Varighed</translation>
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
        <translation>Tilstand</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bithastighed</translation>
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
        <translation>Nej</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> testet</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> I alt:</translation>
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
        <translation>Tilstand:</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>Kanaler: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Varighed: </translation>
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
        <translation>Samlet varighed: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Beklager, du har ikke valgt nogen filer. Batchtesten bliver derfor stoppet.</translation>
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
        <translation> af </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> fuldført</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Vent venligst, batchtesten kører</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Testen er sat på pause</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Testen er annulleret</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Beklager: den åbne mappe </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Beklager, testen af lydniveauet blev stoppet, fordi filen </translation>
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
        <translation> Dobbelt kanal</translation>
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
        <translation>PCM (pulskodemodulation)</translation>
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
        <translation>; Højre: </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>Monokanal: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>Beklager, hjemmesiden %1 kan ikke åbnes.</translation>
    </message>
</context>
</TS>

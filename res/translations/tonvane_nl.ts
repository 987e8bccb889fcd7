<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Dit programma is vrije software onder de GNU General Public License, versie 2 of later. Het wordt geleverd zonder enige garantie.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Bestand wordt gekopieerd</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: niet mogelijk, omdat het bestand niet bestaat.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: niet mogelijk, omdat het pad van het bestand niet bestaat.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, omdat er te veel bestanden geopend zijn.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: niet mogelijk, omdat de toegang tot het bestand geweigerd wordt.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: niet mogelijk, omdat de naam van het bestand, de map of het station ongeldig is.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: niet mogelijk, omdat de bestandsnaam of de extensie te lang is.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: niet mogelijk, omdat het systeem geen toegang tot het bestand krijgt.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>Helaas: </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>bestand </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> niet mogelijk. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> kan niet worden geopend</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Helaas wordt dit bestandstype niet ondersteund.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Helaas: bestand </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Helaas is de piekniveautest niet beschikbaar voor MP3-bestanden; gebruik de gemiddeld-niveautest.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Helaas: bestand </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> bevat fouten. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Helaas: de test van bestand </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> is mislukt.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Test gestopt</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>De test is gestopt omdat het bestand er niet voor geopend is.
Wilt u een bestand kiezen?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Volumeniveau wordt getest</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Helaas is de test gestopt omdat er geen tijdelijke kopie gemaakt kon worden van het bestand </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>De test is gestopt omdat het bestand fouten bevat.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russisch</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Engels</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Duits</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spaans</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Frans</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiaans</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Nederlands</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugees</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Noors</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Deens</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turks</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Pools</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Kroatisch</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinees</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreaans</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Tsjechisch</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Sloveens</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Start het programma opnieuw om de taal van de interface te wijzigen.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Helaas draait er al een kopie van dit programma. Deze kopie wordt daarom niet gestart.</translation>
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
        <translation>&amp;Grijs</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>Over Tonvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Meet hoe luid audiobestanden zijn: het piekniveau en het gemiddelde niveau ten opzichte van de referentie van 89 dB.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Website:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Gebruikte bibliotheken:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Even geduld, bestanden worden gezocht</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauze</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>Verwerken: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Bestandenlijst</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Alle kolommen passend maken</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Kolom passend maken</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Batchverwerking...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Test van bestand:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Batchtest...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Verwachte eindtijd:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>Te verwerken:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Venster sluiten als de batchverwerking klaar is</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Getest:</translation>
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
        <translation>Batchverwerking - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Welk soort batchverwerking wilt u openen?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Soort batchverwerking</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Venster van de batchverwerking maximaliseren</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Map:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Bladeren...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Sleep bestanden of mappen hierheen (of kies Bestanden, Map of Mappen toevoegen). Het programma kiest automatisch alleen ondersteunde bestanden.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> De lijst bevat: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Totaal gecontroleerd: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>&amp;Bestanden toevoegen...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>&amp;Map toevoegen...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>M&amp;appen toevoegen...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>Afspeel&amp;lijsten toevoegen...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sluiten</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>B&amp;ewerken</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>Omlaa&amp;g</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Om&amp;hoog</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>Alles aanvin&amp;ken</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>Alles &amp;uitvinken</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ver&amp;wijderen</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Alles ve&amp;rwijderen</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>Ac&amp;ties</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Afspelen</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Afspelen / &amp;pauze</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stoppen</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Volume</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Harder</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Zachter</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>V&amp;orige</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>Vol&amp;gende</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Venster</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>&amp;Altijd bovenop</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opties</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>Database &amp;gebruiken</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>Database &amp;legen</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>&amp;Database...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Alle &amp;processorkernen gebruiken</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Help bij Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Werkbalk</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Bestanden toevoegen (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Map toevoegen (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Mappen toevoegen (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Afspeellijsten toevoegen (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Omlaag (Alt+Omlaag)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Omhoog (Alt+Omhoog)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Alles aanvinken (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Alles uitvinken (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Verwijderen (Del)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Alles verwijderen (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Help (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Sluiten (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Piekniveau testen</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Gemiddeld niveau testen</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testen</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Batchtest</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Speler</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Even geduld, de bestandenlijst wordt voorbereid</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Bestanden toevoegen </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Afspeellijsten toevoegen</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Kies de map</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Map toevoegen - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Kies de mappen</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Mappen toevoegen - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Helaas hebt u geen bestand gekozen. Kies een bestand.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Database - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Maximale grootte van de database:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Huidige grootte van de database: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Legen</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bits per sample</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Kanalen</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Frequentie</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Audioformaat</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Grootte</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Meer</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Openen...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>&amp;Batchverwerking...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Weergave</translation>
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
        <translation>&amp;Speler</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Dempen</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>&amp;Willekeurig</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>&amp;Herhalen</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>&amp;Alles herhalen</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Piepje na afloop</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Help bij Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>&amp;Website van Tonvane openen</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>&amp;Over Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Openen (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Batch</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Batchverwerking (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Afsluiten (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Bestandsnaam:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Eigenschappen</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Oversturing</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Afspelen / pauze (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Stoppen (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Willekeurig (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Herhalen (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Dempen (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Vorige (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Volgende (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
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
        <translation>Tijd:</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>Totale tijd:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Test van het volumeniveau</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Niet meer tonen</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Taal van de interface</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>T&amp;hema&apos;s</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Helaas is de help van het programma niet geïnstalleerd.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Helaas kan de helppagina %1 niet worden geopend.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Fout bij het starten van de decoderbibliotheek faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>in het MP4-bestand is geen geldig AAC-geluidsspoor te vinden.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>Lezen uit het MP4-bestand is mislukt.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> kan niet worden aangemaakt.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> heeft een geluidsformaat dat het programma niet ondersteunt.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> Het bestand heeft meer dan 2 kanalen.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> is leeg en bevat geen geluidsgegevens.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>Het openen is gestopt omdat het bestand fouten bevat.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> een geheugenafbeelding van het bestand maken is niet mogelijk</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>De test wordt daarom gestopt.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Het is gemaakt met een versie van Monkey&apos;s Audio ouder dan 3.99, die het programma niet decodeert.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. Het is geen Monkey&apos;s Audio-bestand, of de header is beschadigd.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Helaas is er een fout opgetreden bij het openen van de decodeerstroom.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> Het bestand </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> eindigt midden in de geluidsgegevens.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> is beschadigd: de geluidsgegevens doorstaan de controle niet.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Audioformaat     APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Helaas is de test gestopt omdat het bestand </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> leeg is en geen geluidsgegevens bevat. Kies een ander bestand.
Wilt u een bestand kiezen?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>Door een fout in de stroom is de decoder de synchronisatie kwijtgeraakt.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>De decoder trof een beschadigde frameheader aan.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> De gegevens van het frame komen niet overeen met de CRC aan het eind.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>De decoder trof gebruikte gereserveerde velden in de stroom aan.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Audioformaat     FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Wave-bestanden (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Wav-batchverwerking - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> bevat geen Wav-bestanden.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>MP3-bestanden (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Mp3-batchverwerking - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> bevat geen Mp3-bestanden.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>FLAC-bestanden (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>FLAC-batchverwerking - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> bevat geen FLAC-bestanden.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Ogg-bestanden (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Ogg-batchverwerking - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> bevat geen Ogg-bestanden.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>APE-bestanden (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>APE-batchverwerking - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> bevat geen APE-bestanden.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>AAC/ALAC-bestanden (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Mp4 (AAC, ALAC)-batchverwerking - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> bevat geen Mp4-bestanden.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle bestanden (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>M3U-afspeellijst (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Bitrate          </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kbit/s</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Kanalen          </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Frequentie       </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Audioformaat     MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Audioformaat     MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Audioformaat     MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> kon niet worden uitgevoerd.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Bitrate          </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Modus            Stereo</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Modus            Joint stereo</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Modus            Dubbel kanaal</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Modus            Mono</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>Coderingsmethode</translation>
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
        <translation>het bestand in de adresruimte van het proces afbeelden is</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Grootte          </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>een kopie van de descriptor maken om het bestand te kopiëren is</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> bevat geen geluidsgegevens. De test is daarom niet mogelijk.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Audioformaat     Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>Helaas is de bestandsnaam ongeldig. Kies een ander bestand.
Wilt u een bestand kiezen?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>Helaas wordt de bestandsnaam met extensie &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> niet door het programma ondersteund. Kies een ander bestand.
Wilt u een bestand kiezen?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> bytes</translation>
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
        <translation>Openen      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> heeft een geluidsformaat dat het programma niet ondersteunt. De test is daarom niet mogelijk. Kies een ander bestand.
Wilt u een bestand kiezen?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bits per sample  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Kanalen          </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Frequentie       </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>Een stroom voor gegevensconversie kon niet worden geopend</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Audioformaat     PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> De test is daarom niet mogelijk. Kies een ander bestand.
Wilt u een bestand kiezen?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, is leeg en bevat geen geluidsgegevens.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> bevat geen geluidsgegevens die kenmerkend zijn voor Wav-bestanden.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bits per sample  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bits per sample  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bits per sample  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bits per sample  32</translation>
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
        <translation>Monokanaal</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>Linkerkanaal</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>Rechterkanaal</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>het object voor de geheugenafbeelding maken is niet mogelijk</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Kanalen          1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Kanalen          2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Audioformaat     PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>Helaas: voor bestand </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> de huidige positie in het bestand verplaatsen is niet mogelijk. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Het opslaan wordt daarom gestopt.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Helaas is er een schrijffout opgetreden in het uitvoerbestand: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Helaas kan het programma niet verder met het bestand: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Maximaal niveau</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Volumeniveau</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(piekniveau)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(gemiddeld niveau)</translation>
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
        <translation>Max. niveau </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> een tijdelijke kopie openen van het bestand </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Helaas is er een fout opgetreden bij het openen van het bestand &quot;TestLog.csv&quot;.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>De database is geleegd</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Er is geen geluidsapparaat beschikbaar.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Vorige&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Volgende&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Herhalen&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Positie&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Afspelen&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Stoppen&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Dempen&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Pauze&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Willekeurig&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Geen fouten.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Er is geen vrij kanaal gevonden om het geluid af te spelen. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>Het kanaal is hergebruikt om een ander geluid af te spelen. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Fout bij het laden van het bestand. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Verspringen naar de positie is mislukt. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>Het bestand eindigt voordat er geluid uit gelezen kon worden. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Bestand niet gevonden. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Niet-ondersteund bestands- of audioformaat. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>Het geluidssysteem is niet klaar voor deze aanroep. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Er is een ongeldige objecthandle gebruikt. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>Er is een ongeldige parameter aan deze functie doorgegeven. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>Er is een ongeldige positie aan deze functie doorgegeven. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Onvoldoende geheugen of middelen. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Fout bij het starten van het geluidsuitvoerapparaat. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>Het geluidssysteem is nog niet gestart. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Onbekende fout.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> is niet gevonden.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Helaas: map </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> kan niet worden gelezen: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Versterking</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fouten</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duur</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Frequentie</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanalen</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Audioformaat</translation>
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
        <translation>Bits</translation>
    </message>
    <message>
        <source> TB</source>
        <translation> TB</translation>
    </message>
    <message>
        <source> not tested</source>
        <translation> niet getest</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> getest</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Totaal:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Grootte: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Frequentie: </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>Bits: </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>Kanalen: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Duur: </translation>
    </message>
    <message>
        <source> file</source>
        <translation> bestand</translation>
    </message>
    <message>
        <source> files</source>
        <translation> bestanden</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Totale duur: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Helaas hebt u geen bestanden gekozen. De batchtest wordt daarom gestopt.</translation>
    </message>
    <message>
        <source> hr </source>
        <translation> u </translation>
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
        <translation> van </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> voltooid</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Even geduld, de batchtest loopt</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Test onderbroken</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Test geannuleerd</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Helaas: geopende map </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Helaas is de test van het volumeniveau gestopt omdat het bestand </translation>
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
        <translation> Dubbel kanaal</translation>
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
        <translation>PCM (pulscodemodulatie)</translation>
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
        <translation>Links: </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation>; Rechts: </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>Monokanaal: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>Helaas kan de homepage %1 niet worden geopend.</translation>
    </message>
</context>
</TS>

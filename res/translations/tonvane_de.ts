<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Dieses Programm ist freie Software unter der GNU General Public License, Version 2 oder neuer. Es wird ohne jede Gewährleistung geliefert.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Datei wird kopiert</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: nicht möglich, weil die Datei nicht existiert.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: nicht möglich, weil der Pfad der Datei nicht existiert.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, weil zu viele Dateien geöffnet sind.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: nicht möglich, weil der Zugriff auf die Datei verweigert wird.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: nicht möglich, weil der Name der Datei, des Ordners oder des Laufwerks ungültig ist.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: nicht möglich, weil der Dateiname oder seine Endung zu lang ist.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: nicht möglich, weil das System nicht auf die Datei zugreifen kann.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>Leider: </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>Datei </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> nicht möglich. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Leider wird dieser Dateityp nicht unterstützt.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Leider: Datei </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Leider gibt es für MP3-Dateien keinen Spitzenpegeltest; verwenden Sie den Durchschnittstest.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Leider: Datei </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> ist fehlerhaft. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Leider: Der Test der Datei </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Test abgebrochen</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>Der Test wurde abgebrochen, weil die Datei dafür nicht geöffnet wurde.
Möchten Sie eine Datei auswählen?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Lautstärke wird geprüft</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Leider wurde der Test abgebrochen, weil keine temporäre Kopie angelegt werden konnte von der Datei </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>Der Test wurde abgebrochen, weil die Datei fehlerhaft ist.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russisch</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italienisch</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Niederländisch</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugiesisch</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Norwegisch</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Dänisch</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Türkisch</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polnisch</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Kroatisch</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinesisch</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Tschechisch</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Slowenisch</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Die neue Sprache der Oberfläche gilt nach einem Neustart des Programms.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Leider läuft bereits eine Kopie dieses Programms. Diese zweite Kopie wird daher beendet.</translation>
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
        <translation>&amp;Grau</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>Über Tonvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Misst, wie laut Audiodateien sind: den Spitzenpegel und den Durchschnittspegel gegenüber der Referenz von 89 dB.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Website:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Verwendete Bibliotheken:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Bitte warten, Dateien werden gesucht</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>Verarbeitung: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Dateiliste</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Alle Spalten anpassen</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Spalte anpassen</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Stapelverarbeitung...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Test der Datei:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Stapeltest...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Voraussichtliches Ende:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>Zu verarbeiten:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Fenster nach der Stapelverarbeitung schließen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Getestet:</translation>
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
        <translation>Stapelverarbeitung - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Welche Art von Stapelverarbeitung möchten Sie öffnen?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Art der Stapelverarbeitung</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Fenster der Stapelverarbeitung maximieren</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Ziehen Sie Dateien oder Ordner hierher (oder wählen Sie Dateien, Ordner oder mehrere Ordner hinzufügen). Das Programm nimmt automatisch nur unterstützte Dateien.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> Die Liste enthält: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Geprüft insgesamt: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>&amp;Dateien hinzufügen...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>&amp;Ordner hinzufügen...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>&amp;Mehrere Ordner hinzufügen...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>&amp;Wiedergabelisten hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Nach o&amp;ben</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>Auswahl au&amp;fheben</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Alle entfe&amp;rnen</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>A&amp;ktionen</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Wiedergabe / Pa&amp;use</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stopp</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Lautstärke</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>Immer im &amp;Vordergrund</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>Datenbank &amp;verwenden</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>Datenbank &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>&amp;Datenbank...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Alle &amp;Prozessorkerne verwenden</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Hilfe zu Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Dateien hinzufügen (Strg+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Ordner hinzufügen (Strg+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Mehrere Ordner hinzufügen (Strg+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Wiedergabelisten hinzufügen (Strg+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Nach unten (Alt+Unten)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Nach oben (Alt+Oben)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Alle auswählen (Strg+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Auswahl aufheben (Strg+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Entfernen (Entf)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Alle entfernen (Strg+Entf)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Hilfe (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Schließen (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Spitzenpegel testen</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Durchschnittspegel testen</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Stapeltest</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Bitte warten, die Dateiliste wird vorbereitet</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Dateien hinzufügen </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Wiedergabelisten hinzufügen</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Ordner hinzufügen - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Mehrere Ordner hinzufügen - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Leider haben Sie keine Datei ausgewählt. Bitte wählen Sie eine Datei.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Datenbank - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Maximale Größe der Datenbank:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Aktuelle Größe der Datenbank: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bits pro Sample</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Kanäle</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Abtastrate</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Audioformat</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Größe</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>&amp;Stapelverarbeitung...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Anzeige</translation>
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
        <translation>&amp;Player</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>Zu&amp;fall</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>Wi&amp;ederholen</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>&amp;Alle wiederholen</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>Signal&amp;ton am Ende</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Hilfe zu Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Tonvane-&amp;Website öffnen</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>Ü&amp;ber Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Öffnen (Strg+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Stapel</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Stapelverarbeitung (Strg+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Beenden (Strg+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Eigenschaften</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Übersteuert</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Wiedergabe / Pause (Strg+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Stopp (Strg+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Zufall (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Wiederholen (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Stumm (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Zurück (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Weiter (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
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
        <translation>Zeit:</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>Gesamtzeit:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Test des Lautstärkepegels</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Sprache der Oberfläche</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Designs</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Leider ist die Hilfe des Programms nicht installiert.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Leider kann die Hilfeseite %1 nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Fehler beim Starten der Decoderbibliothek faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>in der MP4-Datei ist keine gültige AAC-Tonspur zu finden.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>Das Lesen aus der MP4-Datei ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> hat ein vom Programm nicht unterstütztes Audioformat.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> Die Datei hat mehr als 2 Kanäle.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> ist leer und enthält keine Audiodaten.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>Das Öffnen wurde abgebrochen, weil die Datei fehlerhaft ist.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> Speicherabbild anlegen ist nicht möglich</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Der Test wird daher abgebrochen.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Sie wurde mit einer Version von Monkey&apos;s Audio vor 3.99 erstellt, die das Programm nicht dekodiert.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. Sie ist keine Monkey&apos;s-Audio-Datei, oder ihr Kopf ist beschädigt.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Leider ist beim Öffnen des Datenstroms zum Dekodieren ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> Die Datei </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> endet mitten in ihren Audiodaten.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> ist beschädigt: Ihre Audiodaten bestehen die Prüfung nicht.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Audioformat      APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Der Test wurde abgebrochen, da die Datei </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> leer ist und keine Audiodaten enthält. Bitte wählen Sie eine andere Datei.
Möchten Sie eine Datei auswählen?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>Ein Fehler im Datenstrom hat den Decoder aus dem Takt gebracht.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>Der Decoder ist auf einen beschädigten Frame-Kopf gestoßen.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> Die Daten des Frames passen nicht zur Prüfsumme (CRC) am Ende.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>Der Decoder ist auf belegte reservierte Felder im Datenstrom gestoßen.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Audioformat      FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Wave-Dateien (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Wav-Stapelverarbeitung - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> enthält keine Wav-Dateien.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>MP3-Dateien (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Mp3-Stapelverarbeitung - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> enthält keine Mp3-Dateien.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>FLAC-Dateien (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>FLAC-Stapelverarbeitung - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> enthält keine FLAC-Dateien.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Ogg-Dateien (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Ogg-Stapelverarbeitung - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> enthält keine Ogg-Dateien.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>APE-Dateien (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>APE-Stapelverarbeitung - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> enthält keine APE-Dateien.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>AAC/ALAC-Dateien (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Mp4 (AAC, ALAC)-Stapelverarbeitung - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> enthält keine Mp4-Dateien.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>M3U-Wiedergabeliste (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Bitrate          </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kBit/s</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Kanäle           </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Abtastrate       </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Audioformat      MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Audioformat      MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Audioformat      MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> konnte nicht durchgeführt werden.</translation>
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
        <translation>  Modus            Joint Stereo</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Modus            Zwei Kanäle</translation>
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
        <translation>Kodierung</translation>
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
        <translation>Abbilden der Datei in den Adressraum des Prozesses ist</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Größe            </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>Kopieren des Dateideskriptors für die Kopie der Datei ist</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> enthält keine Audiodaten. Der Test ist daher nicht möglich.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Audioformat      Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>Leider ist der Dateiname ungültig. Bitte wählen Sie eine andere Datei.
Möchten Sie eine Datei auswählen?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>Leider wird der Dateiname mit der Endung &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> vom Programm nicht unterstützt. Bitte wählen Sie eine andere Datei.
Möchten Sie eine Datei auswählen?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> Byte</translation>
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
        <translation>Öffnen      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> hat ein vom Programm nicht unterstütztes Audioformat. Der Test ist daher nicht möglich. Bitte wählen Sie eine andere Datei.
Möchten Sie eine Datei auswählen?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bits pro Sample  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Kanäle           </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Abtastrate       </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>Ein Datenstrom zur Umwandlung ließ sich nicht öffnen</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Audioformat      PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Der Test ist daher nicht möglich. Bitte wählen Sie eine andere Datei.
Möchten Sie eine Datei auswählen?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, ist leer und enthält keine Audiodaten.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> enthält keine für Wav-Dateien typischen Audiodaten.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bits pro Sample  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bits pro Sample  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bits pro Sample  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bits pro Sample  32</translation>
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
        <translation>Mono-Kanal</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>Linker Kanal</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>Rechter Kanal</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>Anlegen des Speicherabbild-Objekts ist nicht möglich</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Kanäle           1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Kanäle           2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Audioformat      PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>Leider: Für die Datei </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> ist das Versetzen der aktuellen Dateiposition nicht möglich. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Das Speichern wird daher abgebrochen.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Leider ist beim Schreiben in die Ausgabedatei ein Fehler aufgetreten: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Leider kann das Programm nicht mit der Datei weiterarbeiten: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Maximalpegel</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Lautstärkepegel</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(Spitzenpegel)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(Durchschnittspegel)</translation>
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
        <translation>Max. Pegel </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> Öffnen einer temporären Kopie der Datei </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Leider ist beim Öffnen der Datei &quot;TestLog.csv&quot; ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>Die Datenbank wurde geleert</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Es ist kein Audiogerät verfügbar.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Lautstärke&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Zurück&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Weiter&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Wiederholen&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Position&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Wiedergabe&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Stopp&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Stumm&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Zufall&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Keine Fehler.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Kein freier Kanal zum Abspielen gefunden. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>Der Kanal wurde für einen anderen Klang wiederverwendet. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Fehler beim Laden der Datei. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Das Springen an die Position ist fehlgeschlagen. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>Die Datei endet, bevor ein Klang gelesen werden konnte. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Datei nicht gefunden. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Nicht unterstütztes Datei- oder Audioformat. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>Das Audiosystem ist für diesen Aufruf nicht bereit. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Ein ungültiges Objekt-Handle wurde verwendet. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>Dieser Funktion wurde ein ungültiger Parameter übergeben. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>Dieser Funktion wurde eine ungültige Position übergeben. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Nicht genügend Speicher oder Ressourcen. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Fehler beim Starten des Audioausgabegeräts. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>Das Audiosystem wurde noch nicht gestartet. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Unbekannter Fehler.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Leider: Ordner </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> kann nicht gelesen werden: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Audioformat</translation>
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
        <translation> nicht getestet</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> getestet</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Gesamt:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Größe: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Abtastrate: </translation>
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
        <translation>Kanäle: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Dauer: </translation>
    </message>
    <message>
        <source> file</source>
        <translation> Datei</translation>
    </message>
    <message>
        <source> files</source>
        <translation> Dateien</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Gesamtdauer: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Leider haben Sie keine Dateien ausgewählt. Der Stapeltest wird daher abgebrochen.</translation>
    </message>
    <message>
        <source> hr </source>
        <translation> Std. </translation>
    </message>
    <message>
        <source> min </source>
        <translation> Min. </translation>
    </message>
    <message>
        <source> sec</source>
        <translation> Sek.</translation>
    </message>
    <message>
        <source> from </source>
        <translation> von </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> abgeschlossen</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Bitte warten, der Stapeltest läuft</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Test angehalten</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Test abgebrochen</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Leider: Ordner </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Leider wurde der Test des Lautstärkepegels abgebrochen, weil die Datei </translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> Stereo</translation>
    </message>
    <message>
        <source> Joint Stereo</source>
        <translation> Joint Stereo</translation>
    </message>
    <message>
        <source> Dual Channels</source>
        <translation> Zwei Kanäle</translation>
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
        <translation>PCM (Pulscodemodulation)</translation>
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
        <translation>Mono-Kanal: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>Leider kann die Homepage %1 nicht geöffnet werden.</translation>
    </message>
</context>
</TS>

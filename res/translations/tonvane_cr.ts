<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hr_HR" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Ovaj je program slobodni softver pod licencom GNU General Public License, inačica 2 ili novija. Isporučuje se bez ikakvog jamstva.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Kopira se datoteka</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: nije moguće jer datoteka ne postoji.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: nije moguće jer putanja datoteke ne postoji.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, jer je otvoreno previše datoteka.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: nije moguće jer je pristup datoteci zabranjen.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: nije moguće jer je naziv datoteke, mape ili diska neispravan.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: nije moguće jer je naziv datoteke ili njezin nastavak predug.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: nije moguće jer sustav ne može pristupiti datoteci.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>Nažalost: </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>datoteka </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> nije moguće. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> ne može se otvoriti</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Nažalost, ova vrsta datoteke nije podržana.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Nažalost: datoteka </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Nažalost, za MP3 datoteke nema testa vršne razine; upotrijebite test prosječne razine.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Nažalost: datoteka </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> sadrži pogreške. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Nažalost: test datoteke </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> nije uspio.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Test je zaustavljen</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>Test je zaustavljen jer datoteka nije otvorena za njega.
Želite li odabrati datoteku?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Testira se razina glasnoće</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Nažalost, test je zaustavljen jer nije bilo moguće stvoriti privremenu kopiju datoteke </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>Test je zaustavljen jer datoteka sadrži pogreške.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Ruski</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Engleski</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Njemački</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Španjolski</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francuski</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Talijanski</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Nizozemski</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugalski</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Norveški</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Danski</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turski</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Poljski</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Hrvatski</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Kineski</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Korejski</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Češki</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Slovenski</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Ponovno pokrenite program da biste promijenili jezik sučelja.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Nažalost, jedna kopija ovog programa već je pokrenuta. Stoga se ova kopija neće pokrenuti.</translation>
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
        <translation>&amp;Siva</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>O programu Tonvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Inačica %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Mjeri koliko su glasne zvučne datoteke: vršnu razinu i prosječnu razinu u odnosu na referentnu razinu od 89 dB.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-pošta:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Web-stranica:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Korištene biblioteke:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Pričekajte, traže se datoteke</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauza</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Nastavi</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>Obrada: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Popis datoteka</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Prilagodi sve stupce</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Prilagodi stupac</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Skupna obrada...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Test datoteke:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Skupni test...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Predviđeni završetak:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>Popis za obradu sadrži:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Zatvori prozor kad skupna obrada završi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>U redu</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Testirano:</translation>
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
        <translation>Skupna obrada - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Koju vrstu skupne obrade želite otvoriti?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Vrsta skupne obrade</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Maksimiziraj prozor skupne obrade</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Mapa:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Pregledaj...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Povucite ovamo datoteke ili mape (ili pritisnite Dodaj datoteke, Dodaj mapu ili Dodaj mape). Program će sam odabrati samo podržane datoteke.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> Popis sadrži: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Ukupno provjereno: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datoteka</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>Dodaj &amp;datoteke...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>Dodaj &amp;mapu...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>Dodaj m&amp;ape...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>Dodaj &amp;popise za reprodukciju...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zatvori</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Uređivanje</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>Premjesti do&amp;lje</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Premjesti &amp;gore</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>Označi &amp;sve</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>&amp;Odznači sve</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>U&amp;kloni</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Ukloni sv&amp;e</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>&amp;Radnje</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>R&amp;eprodukcija</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Reproduciraj / &amp;pauza</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Zaustavi</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Glasnoća</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Glasnije</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Tiše</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>Pr&amp;ethodna</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Sljedeća</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Pro&amp;zor</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>&amp;Uvijek na vrhu</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Mogućnosti</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>&amp;Koristi bazu podataka</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>&amp;Očisti bazu podataka</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>&amp;Baza podataka...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Koristi sve &amp;jezgre procesora</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Pomoć</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Pomoć za Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Alatna traka</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Dodaj datoteke (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Dodaj mapu (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Dodaj mape (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Dodaj popise za reprodukciju (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Premjesti dolje (Alt+Dolje)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Premjesti gore (Alt+Gore)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Označi sve (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Odznači sve (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Ukloni (Del)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Ukloni sve (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Pomoć (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Zatvori (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Test vršne razine</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Test prosječne razine</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Skupni test</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Reproduktor</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Pričekajte, priprema se popis datoteka</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Dodaj datoteke </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Dodaj popise za reprodukciju</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Odaberite mapu</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Dodaj mapu - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Odaberite mape</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Dodaj mape - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Nažalost, niste odabrali nijednu datoteku. Odaberite datoteku.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Baza podataka - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Najveća veličina baze podataka:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Trenutačna veličina baze podataka: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Očisti</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bitova po uzorku</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Kanali</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Frekvencija</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Zvučni format</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Veličina</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Više</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Otvori...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Izlaz</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>&amp;Skupna obrada...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Prikaz</translation>
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
        <translation>&amp;Reproduktor</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Bez zvuka</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>&amp;Nasumično</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>P&amp;onovi</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>Ponovi s&amp;ve</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Zvučni signal na kraju</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Pomoć za Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Otvori &amp;web-stranicu Tonvane</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>&amp;O programu Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otvori</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Otvori (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Skupno</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Skupna obrada (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoć</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Izlaz</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Izlaz (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Naziv datoteke:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Svojstva</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Odsijecanje</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Položaj</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Reproduciraj / pauza (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Zaustavi (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Nasumično (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Ponovi (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Bez zvuka (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Prethodna (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Sljedeća (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Glasnoća</translation>
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
        <translation>Vrijeme:</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>Ukupno vrijeme:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Test razine glasnoće</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Ne prikazuj ponovno</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Jezik sučelja</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Teme</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Nažalost, pomoć programa nije instalirana.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Nažalost, stranica pomoći %1 ne može se otvoriti.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Pogreška pri pokretanju biblioteke dekodera faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>u MP4 datoteci nije pronađen ispravan AAC zvučni zapis.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>Čitanje iz MP4 datoteke nije uspjelo.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> ne može se stvoriti.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> ima format zvučnih podataka koji program ne podržava.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> Datoteka ima više od 2 kanala.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> je prazna i ne sadrži zvučne podatke.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>Otvaranje je zaustavljeno jer datoteka sadrži pogreške.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> stvaranje preslikavanja datoteke u memoriju nije moguće</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Stoga će se test zaustaviti.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Izrađena je inačicom Monkey&apos;s Audio starijom od 3.99, koju program ne dekodira.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. To nije Monkey&apos;s Audio datoteka ili joj je zaglavlje oštećeno.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Nažalost, došlo je do pogreške pri otvaranju toka za dekodiranje.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> Datoteka </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> završava usred zvučnih podataka.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> je oštećena: njezini zvučni podaci ne prolaze provjeru.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Format            APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Nažalost, test je zaustavljen jer je datoteka </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> prazna i ne sadrži zvučne podatke. Odaberite drugu datoteku.
Želite li odabrati datoteku?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>Pogreška u toku uzrokovala je gubitak sinkronizacije dekodera.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>Dekoder je naišao na oštećeno zaglavlje okvira.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> Podaci okvira ne odgovaraju CRC-u na kraju.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>Dekoder je u toku naišao na korištena rezervirana polja.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Format            FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Wave datoteke (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Skupna obrada Wav - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> ne sadrži Wav datoteke.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>MP3 datoteke (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Skupna obrada Mp3 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> ne sadrži Mp3 datoteke.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>FLAC datoteke (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>Skupna obrada FLAC - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> ne sadrži FLAC datoteke.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Ogg datoteke (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Skupna obrada Ogg - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> ne sadrži Ogg datoteke.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>APE datoteke (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>Skupna obrada APE - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> ne sadrži APE datoteke.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>AAC/ALAC datoteke (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Skupna obrada Mp4 (AAC, ALAC) - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> ne sadrži Mp4 datoteke.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Sve datoteke (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>M3U popis za reprodukciju (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Brzina bitova     </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kbit/s</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Kanali            </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Frekvencija       </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Format            MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Format            MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Format            MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> nije bilo moguće provesti.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Brzina bitova     </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Način             Stereo</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Način             Združeni stereo</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Način             Dvostruki kanal</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Način             Mono</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>Način kodiranja</translation>
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
        <translation>preslikavanje datoteke u adresni prostor procesa</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Veličina          </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>stvaranje kopije opisnika za kopiranje datoteke</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> ne sadrži zvučne podatke. Stoga test nije moguć.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Format            Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>Nažalost, naziv datoteke nije ispravan. Odaberite drugu datoteku.
Želite li odabrati datoteku?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>Nažalost, naziv datoteke s nastavkom &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> program ne podržava. Odaberite drugu datoteku.
Želite li odabrati datoteku?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> bajtova</translation>
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
        <translation>Otvori      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> ima format zvučnih podataka koji program ne podržava. Stoga test nije moguć. Odaberite drugu datoteku.
Želite li odabrati datoteku?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bitova po uzorku  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Kanali            </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Frekvencija       </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>Tok za pretvorbu podataka nije se uspio otvoriti</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Format            PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Stoga test nije moguć. Odaberite drugu datoteku.
Želite li odabrati datoteku?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, prazna je i ne sadrži zvučne podatke.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> ne sadrži zvučne podatke svojstvene Wav datotekama.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bitova po uzorku  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bitova po uzorku  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bitova po uzorku  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bitova po uzorku  32</translation>
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
        <translation>Mono kanal</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>Lijevi kanal</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>Desni kanal</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>stvaranje objekta preslikavanja datoteke nije moguće</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Kanali            1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Kanali            2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Format            PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>Nažalost: za datoteku </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> pomicanje trenutačnog položaja u datoteci nije moguće. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Stoga će se spremanje zaustaviti.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Nažalost, došlo je do pogreške pri pisanju u izlaznu datoteku: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Nažalost, program ne može nastaviti rad s datotekom: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Najveća razina</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Razina glasnoće</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(vršna razina)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(prosječna razina)</translation>
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
        <translation>Maks. razina </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> otvaranje privremene kopije datoteke </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Nažalost, došlo je do pogreške pri otvaranju datoteke &quot;TestLog.csv&quot;.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>Baza podataka uspješno je očišćena</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Nema dostupnog zvučnog uređaja.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Glasnoća&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Prethodna&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Sljedeća&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Ponovi&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Položaj&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Reproduciraj&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Zaustavi&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Bez zvuka&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Pauza&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Nasumično&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Nema pogrešaka.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Nije pronađen slobodan kanal za reprodukciju zvuka. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>Navedeni kanal ponovno je upotrijebljen za drugi zvuk. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Pogreška pri učitavanju datoteke. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Premotavanje nije uspjelo. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>Datoteka završava prije nego što se mogao pročitati ikakav zvuk. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Datoteka nije pronađena. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Nepodržan format datoteke ili zvuka. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>Zvučni sustav nije spreman za ovaj poziv. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Upotrijebljen je neispravan identifikator objekta. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>Ovoj je funkciji predan neispravan parametar. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>Ovoj je funkciji predan neispravan položaj. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Nema dovoljno memorije ili resursa. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Pogreška pri pokretanju izlaznog zvučnog uređaja. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>Zvučni sustav još nije pokrenut. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Nepoznata pogreška.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> nije pronađena.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Nažalost: mapa </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> ne može se pročitati: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>Br.</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Naziv datoteke</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Veličina</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Pojačanje</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Pogreške</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trajanje</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Frekvencija</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanali</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Zvučni format</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stanje</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Način</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Brzina bitova</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Bitovi</translation>
    </message>
    <message>
        <source> TB</source>
        <translation> TB</translation>
    </message>
    <message>
        <source> not tested</source>
        <translation> nije testirano</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> testirano</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Ukupno:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Veličina: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Frekvencija: </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>Bitovi: </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Način:</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>Kanali: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Trajanje: </translation>
    </message>
    <message>
        <source> file</source>
        <translation> datoteka</translation>
    </message>
    <message>
        <source> files</source>
        <translation> datoteka</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Ukupno trajanje: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Nažalost, niste odabrali nijednu datoteku. Stoga je skupni test zaustavljen.</translation>
    </message>
    <message>
        <source> hr </source>
        <translation> h </translation>
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
        <translation> od </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> dovršeno</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Pričekajte, skupni test je u tijeku</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Test je pauziran</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Test je otkazan</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Nažalost: otvorena mapa </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Nažalost, test razine glasnoće zaustavljen je jer datoteka </translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> Stereo</translation>
    </message>
    <message>
        <source> Joint Stereo</source>
        <translation> Združeni stereo</translation>
    </message>
    <message>
        <source> Dual Channels</source>
        <translation> Dvostruki kanal</translation>
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
        <translation>PCM (impulsno kodna modulacija)</translation>
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
        <translation>Lijevi: </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation>; Desni: </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>Mono kanal: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>Nažalost, početna stranica %1 ne može se otvoriti.</translation>
    </message>
</context>
</TS>

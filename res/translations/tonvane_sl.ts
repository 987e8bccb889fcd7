<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sl_SI" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Ta program je prosto programje pod licenco GNU General Public License, različica 2 ali novejša. Na voljo je brez kakršnega koli jamstva.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Poteka kopiranje datoteke</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: ni mogoče, ker datoteka ne obstaja.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: ni mogoče, ker pot do datoteke ne obstaja.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, ker je odprtih preveč datotek.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: ni mogoče, ker je dostop do datoteke prepovedan.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: ni mogoče, ker je ime datoteke, mape ali diska napačno.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: ni mogoče, ker je ime datoteke ali njena pripona predolga.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: ni mogoče, ker sistem ne more dostopati do datoteke.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>Žal: </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>datoteke </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> ni mogoče. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> ni mogoče odpreti</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Žal ta vrsta datoteke ni podprta.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Žal: datoteka </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Žal za datoteke MP3 preizkus vršne ravni ni na voljo; uporabite preizkus povprečne ravni.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Žal: datoteka </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> vsebuje napake. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Žal: preizkus datoteke </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> ni uspel.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Preizkus je ustavljen</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>Preizkus je bil ustavljen, ker datoteka zanj ni bila odprta.
Ali želite izbrati datoteko?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Poteka preizkus ravni glasnosti</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Žal je bil preizkus ustavljen, ker ni bilo mogoče ustvariti začasne kopije datoteke </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>Preizkus je bil ustavljen, ker datoteka vsebuje napake.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Ruščina</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Angleščina</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Nemščina</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Španščina</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francoščina</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italijanščina</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Nizozemščina</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugalščina</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Norveščina</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Danščina</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turščina</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Poljščina</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Hrvaščina</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Kitajščina</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Korejščina</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Češčina</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Slovenščina</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Za zamenjavo jezika vmesnika znova zaženite program.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Žal ena kopija tega programa že teče. Zato ta kopija ne bo zagnana.</translation>
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
        <translation>Različica %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Meri, kako glasne so zvočne datoteke: vršno raven in povprečno raven glede na referenco 89 dB.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-pošta:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Spletno mesto:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Uporabljene knjižnice:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Počakajte, iskanje datotek poteka</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Premor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Prekliči</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Nadaljuj</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>Obdelava: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Seznam datotek</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Prilagodi vse stolpce</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Prilagodi stolpec</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Paketna obdelava...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Preizkus datoteke:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Paketni preizkus...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Predviden konec:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>Seznam za obdelavo vsebuje:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Zapri okno, ko se paketna obdelava konča</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>V redu</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Preizkušeno:</translation>
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
        <translation>Paketna obdelava - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Katero vrsto paketne obdelave želite odpreti?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Vrsta paketne obdelave</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Razpni okno paketne obdelave</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Mapa:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Prebrskaj...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Povlecite sem datoteke ali mape (ali pritisnite Dodaj datoteke, Dodaj mapo ali Dodaj mape). Program sam izbere le podprte datoteke.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> Seznam vsebuje: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Skupaj preverjeno: </translation>
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
        <translation>Dodaj &amp;mapo...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>Dodaj m&amp;ape...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>Dodaj &amp;sezname predvajanja...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zapri</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Urejanje</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>Premakni do&amp;l</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Premakni &amp;gor</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>Označi &amp;vse</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>&amp;Odznači vse</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Odst&amp;rani</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Odstrani vs&amp;e</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>De&amp;janja</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Preizkus</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Predvajanje</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Predvajaj / &amp;premor</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Ustavi</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Glasnost</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Glasneje</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Tiše</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>Pr&amp;ejšnja</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Naslednja</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Okno</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>Vedno na &amp;vrhu</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Možnosti</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>&amp;Uporabi zbirko podatkov</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>Po&amp;čisti zbirko podatkov</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>&amp;Zbirka podatkov...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Uporabi vsa &amp;jedra procesorja</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;č</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Pomoč za Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Orodna vrstica</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Dodaj datoteke (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Dodaj mapo (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Dodaj mape (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Dodaj sezname predvajanja (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Premakni dol (Alt+Dol)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Premakni gor (Alt+Gor)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Označi vse (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Odznači vse (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Odstrani (Del)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Odstrani vse (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Pomoč (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Zapri (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Preizkus vršne ravni</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Preizkus povprečne ravni</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Preizkus</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Paketni preizkus</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Predvajalnik</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Počakajte, pripravlja se seznam datotek</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Dodaj datoteke </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Dodaj sezname predvajanja</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Izberite mapo</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Dodaj mapo - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Izberite mape</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Dodaj mape - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Žal niste izbrali nobene datoteke. Izberite datoteko.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Zbirka podatkov - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Največja velikost zbirke podatkov:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Trenutna velikost zbirke podatkov: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Počisti</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bitov na vzorec</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Kanali</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Frekvenca</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Zvočni zapis</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Velikost</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Več</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Odpri...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Izhod</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>Paketna &amp;obdelava...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>Pri&amp;kaz</translation>
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
        <translation>P&amp;redvajalnik</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Utišaj</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>N&amp;aključno</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>P&amp;onovi</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>Ponovi &amp;vse</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Pisk ob koncu</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Pomoč za Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Odpri &amp;spletno mesto Tonvane</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>&amp;O programu Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Odpri</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Odpri (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Paket</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Paketna obdelava (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoč</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Izhod</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Izhod (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Ime datoteke:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Lastnosti</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Prekrmiljenje</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Položaj</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Predvajaj / premor (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Ustavi (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Naključno (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Ponovi (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Utišaj (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Prejšnja (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Naslednja (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Glasnost</translation>
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
        <translation>Čas:</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>Skupni čas:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Preizkus ravni glasnosti</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Ne prikaži več</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Jezik vmesnika</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Teme</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Žal pomoč programa ni nameščena.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Žal strani pomoči %1 ni mogoče odpreti.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Napaka pri zagonu knjižnice dekodirnika faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>v datoteki MP4 ni mogoče najti veljavne zvočne sledi AAC.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>Branje iz datoteke MP4 ni uspelo.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> ni mogoče ustvariti.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> ima zapis zvočnih podatkov, ki ga program ne podpira.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> Datoteka ima več kot 2 kanala.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> je prazna in ne vsebuje zvočnih podatkov.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>Odpiranje je bilo ustavljeno, ker datoteka vsebuje napake.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> ustvariti preslikave datoteke v pomnilnik ni mogoče</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Zato bo preizkus ustavljen.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Ustvarjena je bila z različico Monkey&apos;s Audio, starejšo od 3.99, ki je program ne dekodira.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. To ni datoteka Monkey&apos;s Audio ali pa je njena glava poškodovana.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Žal je pri odpiranju toka za dekodiranje prišlo do napake.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> Datoteka </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> se konča sredi zvočnih podatkov.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> je poškodovana: njeni zvočni podatki ne prestanejo preverjanja.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Zvočni zapis     APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Žal je bil preizkus ustavljen, ker je datoteka </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> prazna in ne vsebuje zvočnih podatkov. Izberite drugo datoteko.
Ali želite izbrati datoteko?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>Napaka v toku je povzročila, da je dekodirnik izgubil sinhronizacijo.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>Dekodirnik je naletel na poškodovano glavo okvirja.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> Podatki okvirja se ne ujemajo s CRC na koncu.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>Dekodirnik je v toku naletel na uporabljena rezervirana polja.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Zvočni zapis     FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Datoteke Wave (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Paketna obdelava Wav - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> ne vsebuje datotek Wav.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>Datoteke MP3 (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Paketna obdelava Mp3 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> ne vsebuje datotek Mp3.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>Datoteke FLAC (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>Paketna obdelava FLAC - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> ne vsebuje datotek FLAC.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Datoteke Ogg (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Paketna obdelava Ogg - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> ne vsebuje datotek Ogg.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>Datoteke APE (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>Paketna obdelava APE - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> ne vsebuje datotek APE.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>Datoteke AAC/ALAC (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Paketna obdelava Mp4 (AAC, ALAC) - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> ne vsebuje datotek Mp4.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Vse datoteke (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>Seznam predvajanja M3U (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Bitna hitrost    </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kb/s</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Kanali           </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Frekvenca        </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Zvočni zapis     MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Zvočni zapis     MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Zvočni zapis     MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> ni bilo mogoče izvesti.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Bitna hitrost    </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Način            Stereo</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Način            Združeni stereo</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Način            Dvojni kanal</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Način            Mono</translation>
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
        <translation>preslikati datoteko v naslovni prostor procesa</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Velikost         </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>ustvariti kopijo opisnika toka za kopiranje datoteke</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> ne vsebuje zvočnih podatkov. Zato preizkus ni mogoč.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Zvočni zapis     Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>Žal je ime datoteke napačno. Izberite drugo datoteko.
Ali želite izbrati datoteko?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>Žal imena datoteke s pripono &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> program ne podpira. Izberite drugo datoteko.
Ali želite izbrati datoteko?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> bajtov</translation>
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
        <translation>Odpri      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> ima zapis zvočnih podatkov, ki ga program ne podpira. Zato preizkus ni mogoč. Izberite drugo datoteko.
Ali želite izbrati datoteko?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bitov na vzorec  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Kanali           </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Frekvenca        </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>Toka za pretvorbo podatkov ni bilo mogoče odpreti</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Zvočni zapis     PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Zato preizkus ni mogoč. Izberite drugo datoteko.
Ali želite izbrati datoteko?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, je prazna in ne vsebuje zvočnih podatkov.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> ne vsebuje zvočnih podatkov, značilnih za datoteke Wav.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bitov na vzorec  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bitov na vzorec  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bitov na vzorec  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bitov na vzorec  32</translation>
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
        <translation>Levi kanal</translation>
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
        <translation>ustvariti predmeta za preslikavo datoteke ni mogoče</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Kanali           1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Kanali           2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Zvočni zapis     PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>Žal: za datoteko </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> premakniti kazalca trenutnega položaja v datoteki ni mogoče. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Zato bo shranjevanje ustavljeno.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Žal je pri pisanju v izhodno datoteko prišlo do napake: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Žal program ne more nadaljevati dela z datoteko: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Največja raven</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Raven glasnosti</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(vršna raven)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(povprečna raven)</translation>
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
        <translation>Najv. raven </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> odpreti začasne kopije datoteke </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Žal je pri odpiranju datoteke &quot;TestLog.csv&quot; prišlo do napake.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>Zbirka podatkov je bila uspešno počiščena</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Nobena zvočna naprava ni na voljo.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Glasnost&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Prejšnja&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Naslednja&lt;/font&gt;&lt;/h3&gt;</translation>
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
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Predvajaj&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Ustavi&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Utišaj&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Premor&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Naključno&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Ni napak.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Za predvajanje zvoka ni bilo mogoče najti prostega kanala. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>Navedeni kanal je bil znova uporabljen za drug zvok. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Napaka pri nalaganju datoteke. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Premik na položaj ni uspel. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>Datoteka se konča, preden je bilo mogoče prebrati kakršen koli zvok. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Datoteke ni mogoče najti. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Nepodprt zapis datoteke ali zvoka. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>Zvočni sistem ni pripravljen na ta klic. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Uporabljena je bila neveljavna oznaka predmeta. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>Tej funkciji je bil podan neveljaven parameter. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>Tej funkciji je bil podan neveljaven položaj. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Premalo pomnilnika ali virov. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Napaka pri zagonu izhodne zvočne naprave. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>Zvočni sistem še ni bil zagnan. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Neznana napaka.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> ni mogoče najti.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Žal: mape </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> ni mogoče prebrati: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>Št.</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Ime datoteke</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Ojačanje</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Napake</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trajanje</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Frekvenca</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanali</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Zvočni zapis</translation>
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
        <translation>Bitna hitrost</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Biti</translation>
    </message>
    <message>
        <source> TB</source>
        <translation> TB</translation>
    </message>
    <message>
        <source> not tested</source>
        <translation> ni preizkušeno</translation>
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
        <translation> preizkušeno</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Skupaj:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Velikost: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Frekvenca: </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>Biti: </translation>
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
        <translation> datotek</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Skupno trajanje: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Žal niste izbrali nobene datoteke. Zato je paketni preizkus ustavljen.</translation>
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
        <translation> končano</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Počakajte, paketni preizkus poteka</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Preizkus je začasno ustavljen</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Preizkus je preklican</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Žal: odprte mape </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Žal je bil preizkus ravni glasnosti ustavljen, ker datoteka </translation>
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
        <translation> Dvojni kanal</translation>
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
        <translation>PCM (impulzna kodna modulacija)</translation>
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
        <translation>Levi: </translation>
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
        <translation>Žal domače strani %1 ni mogoče odpreti.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Tento program je svobodný software šířený pod licencí GNU General Public License verze 2 nebo novější. Je poskytován bez jakékoli záruky.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Probíhá kopírování souboru</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: není možné, protože soubor neexistuje.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: není možné, protože cesta k souboru neexistuje.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, protože je otevřeno příliš mnoho souborů.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: není možné, protože přístup k souboru je zakázán.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: není možné, protože název souboru, složky nebo disku je nesprávný.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: není možné, protože název souboru nebo jeho přípona je příliš dlouhá.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: není možné, protože systém nemá k souboru přístup.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>Bohužel: </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>soubor </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> není možné. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> nelze otevřít</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Bohužel, tento typ souboru není podporován.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Bohužel: soubor </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Bohužel, pro soubory MP3 není test špičkové úrovně k dispozici; použijte test průměrné úrovně.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Bohužel: soubor </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> obsahuje chyby. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Bohužel: test souboru </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> selhal.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Test byl zastaven</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>Test byl zastaven, protože soubor pro něj nebyl otevřen.
Chcete vybrat soubor?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Probíhá test úrovně hlasitosti</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Bohužel, test byl zastaven, protože nebylo možné vytvořit dočasnou kopii souboru </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>Test byl zastaven, protože soubor obsahuje chyby.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Ruština</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Angličtina</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Němčina</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Španělština</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francouzština</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italština</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Nizozemština</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugalština</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Norština</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Dánština</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turečtina</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polština</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Chorvatština</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Čínština</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Korejština</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Čeština</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Slovinština</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Pro změnu jazyka rozhraní je nutné program restartovat.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Bohužel, kopie tohoto programu již běží. Tato kopie proto nebude spuštěna.</translation>
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
        <translation>Š&amp;edý</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>O programu Tonvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verze %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Měří, jak hlasité jsou zvukové soubory: špičkovou úroveň a průměrnou úroveň vůči referenci 89 dB.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Web:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Použité knihovny:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Čekejte prosím, probíhá hledání souborů</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>Zpracování: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Seznam souborů</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Přizpůsobit všechny sloupce</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Přizpůsobit sloupec</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Dávkové zpracování...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Test souboru:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Dávkový test...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Předpokládané dokončení:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>Seznam ke zpracování obsahuje:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Zavřít okno po dokončení dávkového zpracování</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Otestováno:</translation>
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
        <translation>Dávkové zpracování - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Jaký typ dávkového zpracování chcete otevřít?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Typ dávkového zpracování</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Maximalizovat okno dávkového zpracování</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Složka:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procházet...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Přetáhněte sem soubory nebo složky (nebo stiskněte Přidat soubory, Přidat složku či Přidat složky). Program sám vybere jen podporované soubory.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> Seznam obsahuje: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Celkem zkontrolováno: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Soubor</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>Přidat so&amp;ubory...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>Přidat slo&amp;žku...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>Přidat slož&amp;ky...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>Přidat sez&amp;namy skladeb...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zavřít</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Úp&amp;ravy</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>Posunout &amp;dolů</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Posunout na&amp;horu</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>Označit &amp;vše</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>&amp;Zrušit označení</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Odebrat</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Odebrat vš&amp;e</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>&amp;Akce</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Přehrávání</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Přehrát / po&amp;zastavit</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stop</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Hlasitost</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hlasitěji</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Tišeji</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>Př&amp;edchozí</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Další</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>O&amp;kno</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>Vždy &amp;navrchu</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Možnosti</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>&amp;Používat databázi</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>&amp;Vyprázdnit databázi</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>Data&amp;báze...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Používat všechna &amp;jádra procesoru</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Nápověda</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Nápověda k Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Panel nástrojů</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Přidat soubory (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Přidat složku (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Přidat složky (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Přidat seznamy skladeb (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Posunout dolů (Alt+Dolů)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Posunout nahoru (Alt+Nahoru)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Označit vše (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Zrušit označení (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Odebrat (Del)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Odebrat vše (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Nápověda (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Zavřít (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Test špičkové úrovně</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Test průměrné úrovně</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Dávkový test</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Přehrávač</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Čekejte prosím, připravuje se seznam souborů</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Přidat soubory </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Přidat seznamy skladeb</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Vyberte složku</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Přidat složku - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Vyberte složky</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Přidat složky - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Bohužel, nevybrali jste žádný soubor. Vyberte soubor.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Databáze - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Maximální velikost databáze:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Aktuální velikost databáze: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vyprázdnit</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bitů na vzorek</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Kanály</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Vzorkovací frekvence</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Zvukový formát</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Velikost</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Více</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Otevřít...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Konec</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>&amp;Dávkové zpracování...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zobrazit</translation>
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
        <translation>&amp;Přehrávač</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Ztlumit</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>&amp;Náhodně</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>&amp;Opakovat</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>Opakovat &amp;vše</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Zvuk po dokončení</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Nápověda k Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Otevřít &amp;web Tonvane</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>&amp;O programu Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Otevřít (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Dávka</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Dávkové zpracování (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Konec</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Konec (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Název souboru:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Vlastnosti</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Přebuzení</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pozice</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Přehrát / pozastavit (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Stop (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Náhodně (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Opakovat (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Ztlumit (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Předchozí (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Další (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hlasitost</translation>
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
        <translation>Celkový čas:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Test úrovně hlasitosti</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Příště nezobrazovat</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Jazyk rozhraní</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Motivy</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Bohužel, nápověda programu není nainstalována.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Bohužel, stránku nápovědy %1 nelze otevřít.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Chyba při inicializaci knihovny dekodéru faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>v souboru MP4 nelze najít platnou zvukovou stopu AAC.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>Čtení ze souboru MP4 selhalo.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> nelze vytvořit.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> má formát zvukových dat, který program nepodporuje.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> Soubor má více než 2 kanály.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> je prázdný a neobsahuje žádná zvuková data.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>Otevírání souboru bylo zastaveno, protože soubor obsahuje chyby.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> vytvořit mapování souboru do paměti není možné</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Test proto bude zastaven.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Byl vytvořen verzí Monkey&apos;s Audio starší než 3.99, kterou program nedekóduje.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. Nejde o soubor Monkey&apos;s Audio, nebo je jeho hlavička poškozená.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Bohužel, při otevírání dekódovacího proudu došlo k chybě.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> Soubor </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> končí uprostřed zvukových dat.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> je poškozený: jeho zvuková data neprošla kontrolou.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Formát          APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Bohužel, test byl zastaven, protože soubor </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> je prázdný a neobsahuje zvuková data. Vyberte prosím jiný soubor.
Chcete vybrat soubor?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>Chyba v proudu způsobila ztrátu synchronizace dekodéru.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>Dekodér narazil na poškozenou hlavičku rámce.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> Data rámce neodpovídají kontrolnímu součtu CRC na konci.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>Dekodér narazil v proudu na použitá rezervovaná pole.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Formát          FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Soubory Wave (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Dávkové zpracování Wav - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> neobsahuje žádné soubory Wav.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>Soubory MP3 (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Dávkové zpracování Mp3 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> neobsahuje žádné soubory Mp3.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>Soubory FLAC (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>Dávkové zpracování FLAC - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> neobsahuje žádné soubory FLAC.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Soubory Ogg (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Dávkové zpracování Ogg - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> neobsahuje žádné soubory Ogg.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>Soubory APE (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>Dávkové zpracování APE - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> neobsahuje žádné soubory APE.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>Soubory AAC/ALAC (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Dávkové zpracování Mp4 (AAC, ALAC) - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> neobsahuje žádné soubory Mp4.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Všechny soubory (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>Seznam skladeb M3U (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Datový tok      </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kb/s</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Kanály          </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Vzorkování      </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Formát          MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Formát          MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Formát          MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> nebylo možné provést.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Datový tok      </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Režim           Stereo</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Režim           Sdružené stereo</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Režim           Dva kanály</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Režim           Mono</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>Metoda kódování</translation>
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
        <translation>namapovat datový soubor do adresního prostoru procesu</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Velikost        </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>vytvořit kopii deskriptoru proudu pro kopírování souboru</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> neobsahuje zvuková data. Test proto není možný.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Formát          Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>Bohužel, název souboru je nesprávný. Vyberte prosím jiný soubor.
Chcete vybrat soubor?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>Bohužel, název souboru s příponou &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> program nepodporuje. Vyberte prosím jiný soubor.
Chcete vybrat soubor?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> bajtů</translation>
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
        <translation>Otevřít      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> má formát zvukových dat, který program nepodporuje. Test proto není možný. Vyberte prosím jiný soubor.
Chcete vybrat soubor?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bitů na vzorek  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Kanály          </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Vzorkování      </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>Proud pro převod dat se nepodařilo otevřít</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Formát          PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Test proto není možný. Vyberte prosím jiný soubor.
Chcete vybrat soubor?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, je prázdný a neobsahuje žádná zvuková data.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> neobsahuje zvuková data typická pro soubory Wav.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bitů na vzorek  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bitů na vzorek  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bitů na vzorek  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bitů na vzorek  32</translation>
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
        <translation>Mono kanál</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>Levý kanál</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>Pravý kanál</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>vytvořit objekt mapování souboru není možné</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Kanály          1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Kanály          2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Formát          PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>Bohužel: u souboru </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> přesunout ukazatel aktuální pozice v souboru není možné. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Ukládání proto bude zastaveno.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Bohužel, při zápisu do výstupního souboru došlo k chybě: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Bohužel, program nemůže pokračovat v práci se souborem: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Maximální úroveň</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Úroveň hlasitosti</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(špičková úroveň)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(průměrná úroveň)</translation>
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
        <translation>Max. úroveň </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> otevřít dočasnou kopii souboru </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Bohužel, při otevírání souboru &quot;TestLog.csv&quot; došlo k chybě.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>Databáze byla úspěšně vyprázdněna</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Není k dispozici žádné zvukové zařízení.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Hlasitost&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Předchozí&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Další&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Opakovat&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Pozice&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Přehrát&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Ztlumit&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Pozastavit&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Náhodně&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Žádné chyby.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Nebyl nalezen volný kanál pro přehrání zvuku. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>Zadaný kanál byl znovu použit pro jiný zvuk. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Chyba při načítání souboru. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Přesun na pozici se nepodařil. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>Soubor končí dříve, než z něj bylo možné přečíst zvuk. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Soubor nebyl nalezen. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Nepodporovaný formát souboru nebo zvuku. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>Zvukový systém není na toto volání připraven. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Byl použit neplatný identifikátor objektu. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>Této funkci byl předán neplatný parametr. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>Této funkci byla předána neplatná pozice. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Nedostatek paměti nebo prostředků. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Chyba při inicializaci zvukového výstupního zařízení. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>Zvukový systém ještě nebyl inicializován. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Neznámá chyba.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> nebyla nalezena.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Bohužel: složku </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> nelze přečíst: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>Č.</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Zesílení</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Chyby</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Délka</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Vzorkování</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanály</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Zvukový formát</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Režim</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Datový tok</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Bity</translation>
    </message>
    <message>
        <source> TB</source>
        <translation> TB</translation>
    </message>
    <message>
        <source> not tested</source>
        <translation> netestováno</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> otestováno</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Celkem:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Velikost: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Vzorkování: </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>Bity: </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Režim:</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>Kanály: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Délka: </translation>
    </message>
    <message>
        <source> file</source>
        <translation> soubor</translation>
    </message>
    <message>
        <source> files</source>
        <translation> souborů</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Celková délka: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Bohužel, nevybrali jste žádné soubory. Dávkový test proto byl zastaven.</translation>
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
        <translation> z </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> dokončeno</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Čekejte prosím, probíhá dávkový test</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Test je pozastaven</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Test je zrušen</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Bohužel: otevřenou složku </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Bohužel, test úrovně hlasitosti byl zastaven, protože soubor </translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> Stereo</translation>
    </message>
    <message>
        <source> Joint Stereo</source>
        <translation> Sdružené stereo</translation>
    </message>
    <message>
        <source> Dual Channels</source>
        <translation> Dva kanály</translation>
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
        <translation>PCM (pulzně kódová modulace)</translation>
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
        <translation>Levý: </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation>; Pravý: </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>Mono kanál: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>Bohužel, domovskou stránku %1 nelze otevřít.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Ten program jest wolnym oprogramowaniem na licencji GNU General Public License w wersji 2 lub nowszej. Jest dostarczany bez żadnej gwarancji.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Trwa kopiowanie pliku</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: niemożliwe, ponieważ plik nie istnieje.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: niemożliwe, ponieważ ścieżka pliku nie istnieje.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, ponieważ otwartych jest zbyt wiele plików.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: niemożliwe, ponieważ dostęp do pliku jest zabroniony.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: niemożliwe, ponieważ nazwa pliku, folderu lub dysku jest nieprawidłowa.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: niemożliwe, ponieważ nazwa pliku lub jego rozszerzenie jest zbyt długie.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: niemożliwe, ponieważ system nie może uzyskać dostępu do pliku.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>Niestety: </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>plik </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> niemożliwe. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> nie może zostać otwarty</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Niestety, ten typ pliku nie jest obsługiwany.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Niestety: plik </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Niestety, dla plików MP3 test poziomu szczytowego jest niedostępny; użyj testu poziomu średniego.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Niestety: plik </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> zawiera błędy. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Niestety: test pliku </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> nie powiódł się.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Test zatrzymany</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>Test został zatrzymany, ponieważ plik nie został do niego otwarty.
Czy chcesz wybrać plik?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Trwa test poziomu głośności</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Niestety, test został zatrzymany, ponieważ nie udało się utworzyć tymczasowej kopii pliku </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>Test został zatrzymany, ponieważ plik zawiera błędy.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Rosyjski</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Angielski</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Niemiecki</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Hiszpański</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francuski</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Włoski</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Niderlandzki</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugalski</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Norweski</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Duński</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turecki</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polski</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Chorwacki</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chiński</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreański</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Czeski</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Słoweński</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Aby zmienić język interfejsu, uruchom program ponownie.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Niestety, kopia tego programu jest już uruchomiona. Dlatego ta kopia nie zostanie uruchomiona.</translation>
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
        <translation>&amp;Szary</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>O programie Tonvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Mierzy głośność plików dźwiękowych: poziom szczytowy i poziom średni względem poziomu odniesienia 89 dB.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Strona WWW:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Używane biblioteki:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Proszę czekać, trwa wyszukiwanie plików</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>Przetwarzanie: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Lista plików</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Dopasuj wszystkie kolumny</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Dopasuj kolumnę</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Przetwarzanie wsadowe...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Test pliku:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Test wsadowy...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Przewidywany koniec:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>Lista do przetworzenia zawiera:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Zamknij okno po zakończeniu przetwarzania wsadowego</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Przetestowano:</translation>
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
        <translation>Przetwarzanie wsadowe - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Jaki rodzaj przetwarzania wsadowego otworzyć?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Rodzaj przetwarzania wsadowego</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Maksymalizuj okno przetwarzania wsadowego</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Przeglądaj...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Przeciągnij tu pliki lub foldery (albo użyj Dodaj pliki, Dodaj folder lub Dodaj foldery). Program sam wybierze tylko obsługiwane pliki.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> Lista zawiera: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Razem sprawdzono: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>Dodaj &amp;pliki...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>Dodaj &amp;folder...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>Dodaj f&amp;oldery...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>Dodaj &amp;listy odtwarzania...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>Przesuń w &amp;dół</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Przesuń w &amp;górę</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>Zazn&amp;acz wszystko</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>Od&amp;znacz wszystko</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Usuń &amp;wszystko</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>&amp;Akcje</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Odtwarzanie</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Odtwórz / &amp;pauza</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stop</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Głośność</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Głośniej</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ciszej</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>Poprze&amp;dni</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Następny</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>O&amp;kno</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>Zawsze na &amp;wierzchu</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>Op&amp;cje</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>&amp;Używaj bazy danych</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>Wy&amp;czyść bazę danych</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>&amp;Baza danych...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Używaj wszystkich &amp;rdzeni procesora</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Po&amp;moc</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Pomoc programu Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Pasek narzędzi</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Dodaj pliki (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Dodaj folder (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Dodaj foldery (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Dodaj listy odtwarzania (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Przesuń w dół (Alt+Dół)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Przesuń w górę (Alt+Góra)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Zaznacz wszystko (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Odznacz wszystko (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Usuń (Del)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Usuń wszystko (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Pomoc (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Zamknij (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Test poziomu szczytowego</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Test poziomu średniego</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Test wsadowy</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Odtwarzacz</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Proszę czekać, trwa przygotowanie listy plików</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Dodaj pliki </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Dodaj listy odtwarzania</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Wybierz folder</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Dodaj folder - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Wybierz foldery</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Dodaj foldery - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Niestety, nie wybrano żadnego pliku. Wybierz plik.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Baza danych - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Maksymalny rozmiar bazy danych:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Bieżący rozmiar bazy danych: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bity na próbkę</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Kanały</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Częstotliwość</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Format dźwięku</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Rozmiar</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Więcej</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Otwórz...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>Przetwarzanie &amp;wsadowe...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Pokaż</translation>
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
        <translation>&amp;Odtwarzacz</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Wycisz</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>&amp;Losowo</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>Po&amp;wtórz</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>Powtórz wszystk&amp;o</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Sygnał po zakończeniu</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Pomoc programu Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Otwórz &amp;stronę Tonvane</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>&amp;O programie Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Otwórz (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Wsadowo</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Przetwarzanie wsadowe (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Zakończ (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Nazwa pliku:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Właściwości</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Przesterowanie</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pozycja</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Odtwórz / pauza (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Stop (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Losowo (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Powtórz (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Wycisz (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Poprzedni (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Następny (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
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
        <translation>Czas:</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>Czas całkowity:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Test poziomu głośności</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Nie pokazuj ponownie</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Język interfejsu</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Motywy</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Niestety, pomoc programu nie jest zainstalowana.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Niestety, nie można otworzyć strony pomocy %1.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Błąd inicjalizacji biblioteki dekodera faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>w pliku MP4 nie znaleziono prawidłowej ścieżki dźwiękowej AAC.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>Odczyt z pliku MP4 nie powiódł się.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> nie może zostać utworzony.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> ma format danych dźwiękowych nieobsługiwany przez program.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> Plik ma więcej niż 2 kanały.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> jest pusty i nie zawiera danych dźwiękowych.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>Otwieranie pliku zostało przerwane, ponieważ plik zawiera błędy.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> utworzenie odwzorowania pliku w pamięci jest niemożliwe</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Dlatego test zostanie zatrzymany.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Utworzono go wersją Monkey&apos;s Audio starszą niż 3.99, której program nie dekoduje.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. To nie jest plik Monkey&apos;s Audio albo jego nagłówek jest uszkodzony.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Niestety, podczas otwierania strumienia dekodowania wystąpił błąd.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> Plik </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> kończy się w środku danych dźwiękowych.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> jest uszkodzony: jego dane dźwiękowe nie przechodzą kontroli.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Format          APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Niestety, test został zatrzymany, ponieważ plik </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> jest pusty i nie zawiera danych dźwiękowych. Wybierz inny plik.
Czy chcesz wybrać plik?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>Błąd w strumieniu spowodował utratę synchronizacji dekodera.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>Dekoder napotkał uszkodzony nagłówek ramki.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> Dane ramki nie zgadzają się z sumą CRC na jej końcu.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>Dekoder napotkał w strumieniu użyte pola zarezerwowane.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Format          FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Pliki Wave (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Przetwarzanie wsadowe Wav - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> nie zawiera plików Wav.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>Pliki MP3 (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Przetwarzanie wsadowe Mp3 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> nie zawiera plików Mp3.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>Pliki FLAC (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>Przetwarzanie wsadowe FLAC - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> nie zawiera plików FLAC.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Pliki Ogg (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Przetwarzanie wsadowe Ogg - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> nie zawiera plików Ogg.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>Pliki APE (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>Przetwarzanie wsadowe APE - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> nie zawiera plików APE.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>Pliki AAC/ALAC (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Przetwarzanie wsadowe Mp4 (AAC, ALAC) - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> nie zawiera plików Mp4.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Wszystkie pliki (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>Lista odtwarzania M3U (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Przepływność    </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kb/s</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Kanały          </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Częstotliwość   </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Format          MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Format          MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Format          MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> nie mógł zostać wykonany.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Przepływność    </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Tryb            Stereo</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Tryb            Joint stereo</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Tryb            Dwa kanały</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Tryb            Mono</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>Metoda kodowania</translation>
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
        <translation>odwzorowanie pliku w przestrzeni adresowej procesu jest</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Rozmiar         </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>utworzenie kopii deskryptora do kopiowania pliku jest</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> nie zawiera danych dźwiękowych. Dlatego test jest niemożliwy.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Format          Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>Niestety, nazwa pliku jest nieprawidłowa. Wybierz inny plik.
Czy chcesz wybrać plik?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>Niestety, nazwa pliku z rozszerzeniem &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> nie jest obsługiwana przez program. Wybierz inny plik.
Czy chcesz wybrać plik?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> B</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> GB</translation>
    </message>
    <message>
        <source>Open      </source>
        <translation>Otwórz      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> ma format danych dźwiękowych nieobsługiwany przez program. Dlatego test jest niemożliwy. Wybierz inny plik.
Czy chcesz wybrać plik?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bity na próbkę  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Kanały          </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Częstotliwość   </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>Nie udało się otworzyć strumienia konwersji danych</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Format          PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Dlatego test jest niemożliwy. Wybierz inny plik.
Czy chcesz wybrać plik?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, jest pusty i nie zawiera danych dźwiękowych.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> nie zawiera danych dźwiękowych typowych dla plików Wav.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bity na próbkę  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bity na próbkę  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bity na próbkę  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bity na próbkę  32</translation>
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
        <translation>Kanał mono</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>Kanał lewy</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>Kanał prawy</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>utworzenie obiektu odwzorowania pliku jest niemożliwe</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Kanały          1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Kanały          2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Format          PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>Niestety: dla pliku </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> przesunięcie bieżącej pozycji w pliku jest niemożliwe. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Dlatego zapis zostanie przerwany.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Niestety, wystąpił błąd zapisu do pliku wyjściowego: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Niestety, program nie może kontynuować pracy z plikiem: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Poziom maksymalny</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Poziom głośności</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(poziom szczytowy)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(poziom średni)</translation>
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
        <translation>Maks. poziom </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> otwarcie tymczasowej kopii pliku </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Niestety, podczas otwierania pliku &quot;TestLog.csv&quot; wystąpił błąd.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>Baza danych została wyczyszczona</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Brak dostępnego urządzenia dźwiękowego.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Głośność&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Poprzedni&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Następny&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Powtórz&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Pozycja&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Odtwórz&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Wycisz&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Pauza&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Losowo&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Brak błędów.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Nie znaleziono wolnego kanału do odtworzenia dźwięku. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>Wskazany kanał został użyty ponownie do odtworzenia innego dźwięku. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Błąd wczytywania pliku. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Nie udało się przejść do pozycji. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>Plik kończy się, zanim udało się odczytać jakikolwiek dźwięk. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Nie znaleziono pliku. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Nieobsługiwany format pliku lub dźwięku. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>System dźwięku nie jest gotowy na to wywołanie. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Użyto nieprawidłowego uchwytu obiektu. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>Do tej funkcji przekazano nieprawidłowy parametr. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>Do tej funkcji przekazano nieprawidłową pozycję. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Za mało pamięci lub zasobów. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Błąd inicjalizacji urządzenia wyjścia dźwięku. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>System dźwięku nie został jeszcze zainicjalizowany. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Nieznany błąd.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> nie został znaleziony.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Niestety: folder </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> nie może zostać odczytany: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>Nr</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Wzmocnienie</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Błędy</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Częstotliwość</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanały</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Format dźwięku</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Tryb</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Przepływność</translation>
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
        <translation> nie przetestowano</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> przetestowano</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Razem:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Rozmiar: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Częstotliwość: </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>Bity: </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Tryb:</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>Kanały: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Czas trwania: </translation>
    </message>
    <message>
        <source> file</source>
        <translation> plik</translation>
    </message>
    <message>
        <source> files</source>
        <translation> plików</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Łączny czas trwania: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Niestety, nie wybrano żadnych plików. Dlatego test wsadowy został zatrzymany.</translation>
    </message>
    <message>
        <source> hr </source>
        <translation> godz. </translation>
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
        <translation> ukończono</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Proszę czekać, trwa test wsadowy</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Test wstrzymany</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Test anulowany</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Niestety: otwarty folder </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Niestety, test poziomu głośności został zatrzymany, ponieważ plik </translation>
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
        <translation> Dwa kanały</translation>
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
        <translation>PCM (modulacja impulsowo-kodowa)</translation>
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
        <translation>Lewy: </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation>; Prawy: </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>Kanał mono: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>Niestety, nie można otworzyć strony domowej %1.</translation>
    </message>
</context>
</TS>

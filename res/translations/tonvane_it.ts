<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Questo programma è software libero distribuito secondo la GNU General Public License, versione 2 o successiva. Viene fornito senza alcuna garanzia.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Copia del file in corso</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: impossibile, perché il file non esiste.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: impossibile, perché il percorso del file non esiste.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, perché ci sono troppi file aperti.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: impossibile, perché l&apos;accesso al file è negato.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: impossibile, perché il nome del file, della cartella o dell&apos;unità non è valido.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: impossibile, perché il nome del file o la sua estensione è troppo lungo.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: impossibile, perché il sistema non riesce ad accedere al file.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>Spiacenti: </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>il file </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> impossibile. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> non può essere aperto</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Spiacenti, questo tipo di file non è supportato.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Spiacenti: il file </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Spiacenti, per i file MP3 il test del livello di picco non è disponibile; usare il test del livello medio.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Spiacenti: il file </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> contiene errori. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Spiacenti: il test del file </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> non è riuscito.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Test interrotto</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>Il test è stato interrotto perché il file non è stato aperto.
Scegliere un file?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Test del livello del volume in corso</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Spiacenti, il test è stato interrotto perché non è stato possibile creare una copia temporanea del file </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>Il test è stato interrotto perché il file contiene errori.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russo</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglese</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Tedesco</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spagnolo</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francese</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Olandese</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portoghese</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Norvegese</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Danese</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turco</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polacco</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Croato</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Cinese</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Ceco</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Sloveno</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Riavviare il programma per cambiare la lingua dell&apos;interfaccia.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Spiacenti, una copia di questo programma è già in esecuzione. Questa copia non verrà quindi avviata.</translation>
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
        <translation>&amp;Grigio</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>Informazioni su Tonvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Misura quanto sono forti i file audio: il livello di picco e il livello medio rispetto al riferimento di 89 dB.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Sito web:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Librerie in uso:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Attendere, ricerca dei file in corso</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>Elaborazione: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Elenco dei file</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Adatta tutte le colonne</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Adatta la colonna</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Elaborazione in serie...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Test del file:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Test in serie...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Fine prevista:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>L&apos;elenco da elaborare contiene:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Chiudi la finestra al termine dell&apos;elaborazione in serie</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Testati:</translation>
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
        <translation>Elaborazione in serie - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Quale tipo di elaborazione in serie aprire?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Tipo di elaborazione in serie</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Massimizza la finestra dell&apos;elaborazione in serie</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Cartella:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Trascinare qui file o cartelle (oppure premere Aggiungi file, Aggiungi cartella o Aggiungi cartelle). Il programma sceglie automaticamente solo i file supportati.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> L&apos;elenco contiene: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Totale verificati: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>Aggiungi &amp;file...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>Aggiungi car&amp;tella...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>Aggiungi c&amp;artelle...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>Aggiungi &amp;playlist...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>Sposta &amp;giù</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Sposta s&amp;u</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>Seleziona &amp;tutto</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>&amp;Deseleziona tutto</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Rimuovi tutt&amp;o</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>A&amp;zioni</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Riproduzione</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Riproduci / &amp;pausa</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stop</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Volume</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Alza</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abbassa</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>Pr&amp;ecedente</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>S&amp;uccessivo</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fi&amp;nestra</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>Sempre in &amp;primo piano</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opzioni</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>&amp;Usa database</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>S&amp;vuota database</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>&amp;Database...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Usa tutti i &amp;core del processore</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Guida</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Guida di Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra degli strumenti</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Aggiungi file (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Aggiungi cartella (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Aggiungi cartelle (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Aggiungi playlist (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Sposta giù (Alt+Giù)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Sposta su (Alt+Su)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Seleziona tutto (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Deseleziona tutto (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Rimuovi (Canc)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Rimuovi tutto (Ctrl+Canc)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Guida (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Chiudi (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Test livello di picco</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Test livello medio</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Test in serie</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Riproduttore</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Attendere, preparazione dell&apos;elenco dei file in corso</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Aggiungi file </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Aggiungi playlist</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Scegliere la cartella</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Aggiungi cartella - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Scegliere le cartelle</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Aggiungi cartelle - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Spiacenti, non è stato selezionato alcun file. Selezionare un file.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Database - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Dimensione massima del database:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Dimensione attuale del database: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bit per campione</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Canali</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Frequenza</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Formato audio</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Dimensione</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Apri...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>Elaborazione in &amp;serie...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostra</translation>
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
        <translation>&amp;Riproduttore</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muto</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>&amp;Casuale</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>Ripeti &amp;tutto</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Segnale acustico alla fine</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Guida di Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Apri il &amp;sito di Tonvane</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>&amp;Informazioni su Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Apri (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Elaborazione in serie (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Esci (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Nome file:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Proprietà</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Riproduci / pausa (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Stop (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Casuale (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Ripeti (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Muto (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Precedente (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Successivo (N)</translation>
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
        <translation>Tempo:</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>Tempo totale:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Test del livello del volume</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Non mostrare più</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Lingua dell&apos;interfaccia</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Temi</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Spiacenti, la guida del programma non è installata.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Spiacenti, impossibile aprire la pagina della guida %1.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Errore nell&apos;inizializzazione della libreria di decodifica faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>nel file MP4 non si trova una traccia audio AAC valida.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>Lettura dal file MP4 non riuscita.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> non può essere creato.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> ha un formato di dati audio non supportato dal programma.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> Il file ha più di 2 canali.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> è vuoto e non contiene dati audio.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>L&apos;apertura del file è stata interrotta perché il file contiene errori.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> creare una mappatura del file in memoria è impossibile</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Il test verrà quindi interrotto.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. È stato creato con una versione di Monkey&apos;s Audio precedente alla 3.99, che il programma non decodifica.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. Non è un file Monkey&apos;s Audio, oppure la sua intestazione è danneggiata.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Spiacenti, si è verificato un errore nell&apos;apertura del flusso di decodifica.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> Il file </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> termina nel mezzo dei suoi dati audio.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> è danneggiato: i suoi dati audio non superano la verifica.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Formato audio     APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Spiacenti, il test è stato interrotto perché il file </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> è vuoto e non contiene dati audio. Scegliere un altro file.
Scegliere un file?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>Un errore nel flusso ha fatto perdere la sincronizzazione al decodificatore.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>Il decodificatore ha trovato un&apos;intestazione di frame danneggiata.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> I dati del frame non corrispondono al CRC finale.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>Il decodificatore ha trovato campi riservati in uso nel flusso.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Formato audio     FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>File Wave (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Elaborazione in serie Wav - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> non contiene file Wav.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>File MP3 (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Elaborazione in serie Mp3 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> non contiene file Mp3.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>File FLAC (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>Elaborazione in serie FLAC - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> non contiene file FLAC.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>File Ogg (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Elaborazione in serie Ogg - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> non contiene file Ogg.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>File APE (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>Elaborazione in serie APE - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> non contiene file APE.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>File AAC/ALAC (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Elaborazione in serie Mp4 (AAC, ALAC) - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> non contiene file Mp4.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tutti i file (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>Playlist M3U (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Bitrate           </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kbps</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Canali            </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Frequenza         </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Formato audio     MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Formato audio     MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Formato audio     MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> non è stato possibile.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Bitrate           </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Modalità          Stereo</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Modalità          Joint stereo</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Modalità          Doppio canale</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Modalità          Mono</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>Metodo di codifica</translation>
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
        <translation>mappare il file nello spazio di indirizzi del processo è</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Dimensione        </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>creare una copia del descrittore per copiare il file è</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> non contiene dati audio. Il test è quindi impossibile.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Formato audio     Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>Spiacenti, il nome del file non è valido. Scegliere un altro file.
Scegliere un file?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>Spiacenti, il nome del file con estensione &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> non è supportato dal programma. Scegliere un altro file.
Scegliere un file?</translation>
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
        <translation>Apri      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> ha un formato di dati audio non supportato dal programma. Il test è quindi impossibile. Scegliere un altro file.
Scegliere un file?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bit per campione  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Canali            </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Frequenza         </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>Non è stato possibile aprire un flusso di conversione dei dati</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Formato audio     PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Il test è quindi impossibile. Scegliere un altro file.
Scegliere un file?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, è vuoto e non contiene dati audio.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> non contiene dati audio tipici dei file Wav.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bit per campione  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bit per campione  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bit per campione  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bit per campione  32</translation>
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
        <translation>Canale mono</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>Canale sinistro</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>Canale destro</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>creare l&apos;oggetto di mappatura del file è impossibile</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Canali            1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Canali            2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Formato audio     PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>Spiacenti: per il file </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> spostare la posizione corrente nel file è impossibile. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Il salvataggio verrà quindi interrotto.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Spiacenti, si è verificato un errore di scrittura nel file di uscita: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Spiacenti, il programma non può continuare a lavorare con il file: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Livello massimo</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Livello del volume</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(livello di picco)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(livello medio)</translation>
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
        <translation>Livello max. </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> aprire una copia temporanea del file </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Spiacenti, si è verificato un errore nell&apos;apertura del file &quot;TestLog.csv&quot;.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>Il database è stato svuotato</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Nessun dispositivo audio disponibile.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Precedente&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Successivo&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Ripeti&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Posizione&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Riproduci&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Muto&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Pausa&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Casuale&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Nessun errore.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Nessun canale libero per riprodurre il suono. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>Il canale indicato è stato riutilizzato per un altro suono. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Errore nel caricamento del file. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Impossibile spostarsi nella posizione richiesta. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>Il file termina prima che si possa leggere alcun suono. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>File non trovato. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Formato di file o audio non supportato. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>Il sistema audio non è pronto per questa chiamata. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>È stato usato un handle di oggetto non valido. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>A questa funzione è stato passato un parametro non valido. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>A questa funzione è stata passata una posizione non valida. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Memoria o risorse insufficienti. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Errore nell&apos;inizializzazione del dispositivo di uscita audio. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>Il sistema audio non è ancora stato inizializzato. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Errore sconosciuto.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> non è stata trovata.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Spiacenti: la cartella </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> non può essere letta: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Guadagno</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errori</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Frequenza</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Formato audio</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modalità</translation>
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
        <translation> non testati</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> testati</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Totale:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Dimensione: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Frequenza: </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>Bit: </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modalità:</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>Canali: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Durata: </translation>
    </message>
    <message>
        <source> file</source>
        <translation> file</translation>
    </message>
    <message>
        <source> files</source>
        <translation> file</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Durata totale: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Spiacenti, non è stato selezionato alcun file. Il test in serie viene quindi interrotto.</translation>
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
        <translation> di </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> completato</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Attendere, test in serie in corso</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Test sospeso</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Test annullato</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Spiacenti: la cartella aperta </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Spiacenti, il test del livello del volume è stato interrotto perché il file </translation>
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
        <translation> Doppio canale</translation>
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
        <translation>PCM (modulazione a impulsi codificati)</translation>
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
        <translation>Sinistro: </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation>; Destro: </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>Canale mono: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>Spiacenti, impossibile aprire la home page %1.</translation>
    </message>
</context>
</TS>

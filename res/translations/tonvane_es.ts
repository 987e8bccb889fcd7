<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Este programa es software libre bajo la Licencia Pública General de GNU, versión 2 o posterior. Se ofrece sin ninguna garantía.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Copiando el archivo</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: no es posible porque el archivo no existe.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: no es posible porque la ruta del archivo no existe.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, porque hay demasiados archivos abiertos.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: no es posible porque el acceso al archivo está prohibido.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: no es posible porque el nombre del archivo, de la carpeta o del disco no es válido.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: no es posible porque el nombre del archivo o su extensión es demasiado largo.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: no es posible porque el sistema no puede acceder al archivo.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>Lo sentimos: </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>el archivo </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> no es posible. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> no se puede abrir</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Lo sentimos, este tipo de archivo no es compatible.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Lo sentimos: el archivo </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Lo sentimos, los archivos MP3 no admiten la prueba de nivel de pico; use la prueba de nivel medio.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Lo sentimos: el archivo </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> tiene errores. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Lo sentimos: la prueba del archivo </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> ha fallado.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Prueba detenida</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>La prueba se ha detenido porque el archivo no se abrió para ella.
¿Desea elegir un archivo?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Comprobando el nivel de volumen</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Lo sentimos, la prueba se detuvo porque no se pudo crear una copia temporal del archivo </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>La prueba se ha detenido porque el archivo tiene errores.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Ruso</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemán</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francés</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Neerlandés</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugués</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Noruego</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Danés</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turco</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polaco</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Croata</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chino</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Checo</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Esloveno</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Reinicie el programa para cambiar el idioma de la interfaz.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Lo sentimos, ya hay otra copia de este programa en ejecución. Por eso esta copia no se iniciará.</translation>
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
        <translation>&amp;Gris</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>Acerca de Tonvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Mide lo fuerte que suenan los archivos de audio: el nivel de pico y el nivel medio respecto a la referencia de 89 dB.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>Correo electrónico:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Sitio web:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Bibliotecas en uso:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Espere, se están buscando los archivos</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>Procesando: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Lista de archivos</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Ajustar todas las columnas</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Ajustar la columna</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Procesamiento por lotes...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Prueba del archivo:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Prueba por lotes...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Hora estimada de finalización:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>La lista de proceso contiene:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Cerrar la ventana al terminar el procesamiento por lotes</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Probados:</translation>
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
        <translation>Procesamiento por lotes - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>¿Qué tipo de procesamiento por lotes desea abrir?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Tipo de procesamiento por lotes</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Maximizar la ventana del procesamiento por lotes</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Arrastre archivos o carpetas aquí (o pulse Añadir archivos, Añadir carpeta o Añadir carpetas). El programa elegirá automáticamente solo los archivos compatibles.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> La lista contiene: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Total probados: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>Añadir &amp;archivos...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>Añadir carp&amp;eta...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>Añadir ca&amp;rpetas...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>Añadir &amp;listas de reproducción...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>S&amp;ubir</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>&amp;Marcar todo</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>&amp;Desmarcar todo</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Quitar &amp;todo</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>Acc&amp;iones</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Prueba</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Reproducción</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Reproducir / &amp;pausa</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Volumen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>&amp;Anterior</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Ventana</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>&amp;Siempre visible</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>&amp;Usar base de datos</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>&amp;Vaciar base de datos</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>&amp;Base de datos...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Usar todos los &amp;núcleos del procesador</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Ayuda de Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Añadir archivos (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Añadir carpeta (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Añadir carpetas (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Añadir listas de reproducción (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Bajar (Alt+Abajo)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Subir (Alt+Arriba)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Marcar todo (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Desmarcar todo (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Quitar (Supr)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Quitar todo (Ctrl+Supr)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Ayuda (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Cerrar (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Nivel de pico</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Nivel medio</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Probar</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Prueba por lotes</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Reproductor</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Espere, se está preparando la lista de archivos</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Añadir archivos </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Añadir listas de reproducción</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Elija la carpeta</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Añadir carpeta - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Elija las carpetas</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Añadir carpetas - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Lo sentimos, no ha seleccionado ningún archivo. Seleccione un archivo.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Base de datos - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Tamaño máximo de la base de datos:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Tamaño actual de la base de datos: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bits por muestra</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Canales</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Frecuencia</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Formato de audio</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Tamaño</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>Procesamiento por &amp;lotes...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
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
        <translation>&amp;Reproductor</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silencio</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>Alea&amp;torio</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>&amp;Repetir</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>Repetir t&amp;odo</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Pitido al terminar</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Ayuda de Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Abrir la &amp;página de Tonvane</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>A&amp;cerca de Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Abrir (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Lotes</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Procesamiento por lotes (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Salir (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Archivo:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Propiedades</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Reproducir / pausa (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Detener (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Aleatorio (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Repetir (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Silencio (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Anterior (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Siguiente (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
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
        <translation>Tiempo:</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>Tiempo total:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Prueba del nivel de volumen</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>No volver a mostrar</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Idioma de la interfaz</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Temas</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Lo sentimos, la ayuda del programa no está instalada.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Lo sentimos, no se puede abrir la página de ayuda %1.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Error al iniciar la biblioteca decodificadora faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>no se encuentra una pista de audio AAC válida en el archivo MP4.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>No se pudo leer el archivo MP4.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> no se puede crear.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> tiene un formato de datos de sonido que el programa no admite.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> El archivo tiene más de 2 canales.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> está vacío y no contiene datos de sonido.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>Se detuvo la apertura porque el archivo tiene errores.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> crear una proyección del archivo en memoria no es posible</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Por eso se detendrá la prueba.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Se creó con una versión de Monkey&apos;s Audio anterior a la 3.99, que el programa no decodifica.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. No es un archivo de Monkey&apos;s Audio, o su cabecera está dañada.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Lo sentimos, se produjo un error al abrir el flujo de decodificación.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> El archivo </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> termina en medio de sus datos de sonido.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> está dañado: sus datos de sonido no superan la comprobación.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Formato           APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Lo sentimos, la prueba se detuvo porque el archivo </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> está vacío y no contiene datos de sonido. Elija otro archivo.
¿Desea elegir un archivo?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>Un error en el flujo hizo que el decodificador perdiera la sincronización.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>El decodificador encontró una cabecera de trama dañada.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> Los datos de la trama no coinciden con el CRC del final.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>El decodificador encontró campos reservados en uso en el flujo.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Formato           FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Archivos Wave (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Procesamiento por lotes Wav - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> no contiene archivos Wav.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>Archivos MP3 (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Procesamiento por lotes Mp3 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> no contiene archivos Mp3.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>Archivos FLAC (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>Procesamiento por lotes FLAC - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> no contiene archivos FLAC.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Archivos Ogg (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Procesamiento por lotes Ogg - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> no contiene archivos Ogg.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>Archivos APE (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>Procesamiento por lotes APE - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> no contiene archivos APE.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>Archivos AAC/ALAC (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Procesamiento por lotes Mp4 (AAC, ALAC) - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> no contiene archivos Mp4.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>Lista de reproducción M3U (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Tasa de bits      </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kbps</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Canales           </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Frecuencia        </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Formato           MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Formato           MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Formato           MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> no se pudo realizar.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Tasa de bits      </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Modo              Estéreo</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Modo              Estéreo conjunto</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Modo              Canal dual</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Modo              Mono</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>Método de codificación</translation>
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
        <translation>proyectar el archivo en el espacio de direcciones del proceso</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Tamaño            </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>crear una copia del descriptor para copiar el archivo</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> no contiene datos de sonido. Por eso la prueba no es posible.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Formato           Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>Lo sentimos, el nombre del archivo no es válido. Elija otro archivo.
¿Desea elegir un archivo?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>Lo sentimos, el nombre de archivo con la extensión &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> no es compatible con el programa. Elija otro archivo.
¿Desea elegir un archivo?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> bytes</translation>
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
        <translation>Abrir      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> tiene un formato de datos de sonido que el programa no admite. Por eso la prueba no es posible. Elija otro archivo.
¿Desea elegir un archivo?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bits por muestra  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Canales           </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Frecuencia        </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>No se pudo abrir un flujo de conversión de datos</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Formato           PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Por eso la prueba no es posible. Elija otro archivo.
¿Desea elegir un archivo?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, está vacío y no contiene datos de sonido.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> no contiene datos de sonido propios de los archivos Wav.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bits por muestra  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bits por muestra  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bits por muestra  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bits por muestra  32</translation>
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
        <translation>Canal mono</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>Canal izquierdo</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>Canal derecho</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>crear el objeto de proyección del archivo no es posible</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Canales           1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Canales           2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Formato           PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>Lo sentimos: para el archivo </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> mover el puntero de la posición actual no es posible. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Por eso se detendrá el guardado.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Lo sentimos, se produjo un error al escribir en el archivo de salida: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Lo sentimos, el programa no puede seguir trabajando con el archivo: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Nivel máximo</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Nivel de volumen</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(nivel de pico)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(nivel medio)</translation>
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
        <translation>Nivel máx. </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> abrir una copia temporal del archivo </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Lo sentimos, se produjo un error al abrir el archivo &quot;TestLog.csv&quot;.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>La base de datos se ha vaciado correctamente</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>No hay ningún dispositivo de sonido disponible.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Volumen&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Anterior&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Siguiente&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Repetir&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Posición&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Reproducir&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Detener&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Silencio&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Pausa&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Aleatorio&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Sin errores.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>No se encontró ningún canal libre para reproducir el sonido. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>El canal indicado se ha reutilizado para reproducir otro sonido. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Error al cargar el archivo. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>No se pudo saltar a la posición. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>El archivo termina antes de poder leer ningún sonido. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Archivo no encontrado. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Formato de archivo o de audio no compatible. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>El sistema de sonido no está listo para esta llamada. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Se usó un identificador de objeto no válido. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>Se pasó un parámetro no válido a esta función. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>Se pasó una posición no válida a esta función. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Memoria o recursos insuficientes. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Error al iniciar el dispositivo de salida de sonido. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>El sistema de sonido aún no se ha iniciado. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Error desconocido.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> no se encuentra.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Lo sentimos: la carpeta </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> no se puede leer: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Ganancia</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errores</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Formato de audio</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Tasa de bits</translation>
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
        <translation> sin probar</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> probados</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Total:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Tamaño: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Frecuencia: </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>Bits: </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>Canales: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Duración: </translation>
    </message>
    <message>
        <source> file</source>
        <translation> archivo</translation>
    </message>
    <message>
        <source> files</source>
        <translation> archivos</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Duración total: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Lo sentimos, no ha seleccionado ningún archivo. Por eso se detiene la prueba por lotes.</translation>
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
        <translation> de </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> completado</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Espere, la prueba por lotes está en curso</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Prueba en pausa</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Prueba cancelada</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Lo sentimos: la carpeta abierta </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Lo sentimos, la prueba del nivel de volumen se detuvo porque el archivo </translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> Estéreo</translation>
    </message>
    <message>
        <source> Joint Stereo</source>
        <translation> Estéreo conjunto</translation>
    </message>
    <message>
        <source> Dual Channels</source>
        <translation> Canal dual</translation>
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
        <translation>PCM (modulación por impulsos codificados)</translation>
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
        <translation>Izquierdo: </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation>; Derecho: </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>Canal mono: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>Lo sentimos, no se puede abrir la página de inicio %1.</translation>
    </message>
</context>
</TS>

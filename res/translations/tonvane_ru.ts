<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Эта программа — свободное программное обеспечение на условиях GNU General Public License версии 2 или более поздней. Она поставляется без каких-либо гарантий.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Идёт копирование файла</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: невозможно, так как файл не существует.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: невозможно, так как путь к файлу не существует.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, так как открыто слишком много файлов.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: невозможно, так как доступ к файлу запрещён.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: невозможно из-за неверного имени файла, папки или диска.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: невозможно, так как имя файла или его расширение слишком длинное.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: невозможно, так как система не может получить доступ к файлу.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>К сожалению, </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>файл </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> невозможно. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> не удаётся открыть</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>К сожалению, этот тип файлов не поддерживается.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>К сожалению, файл </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>К сожалению, для файлов MP3 проверка пикового уровня недоступна; используйте проверку среднего уровня.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>К сожалению, файл </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> содержит ошибки. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>К сожалению, проверка файла </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> не удалась.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Проверка остановлена</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>Проверка остановлена, так как файл не был для неё открыт.
Открыть диалог выбора файла?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Идёт проверка уровня громкости</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>К сожалению, проверка остановлена: не удалось создать временную копию файла </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>Проверка остановлена, так как файл содержит ошибки.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Английский</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Немецкий</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Испанский</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Французский</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Итальянский</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Нидерландский</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Португальский</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Норвежский</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Датский</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Турецкий</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Польский</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Хорватский</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Китайский</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Корейский</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Чешский</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Словенский</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Чтобы сменить язык интерфейса, перезапустите программу.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>К сожалению, копия этой программы уже запущена и работает. Поэтому запуск этой копии будет остановлен.</translation>
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
        <translation>&amp;Серая</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>О программе Tonvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Измеряет громкость аудиофайлов: пиковый уровень и средний уровень относительно опорного уровня 89 дБ.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>Эл. почта:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Веб-сайт:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Используемые библиотеки:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Пожалуйста, подождите: идёт поиск файлов</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>Обработка: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Список файлов</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Подогнать все столбцы</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Подогнать столбец</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Пакетная обработка...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Проверка файла:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Пакетная проверка...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Ожидаемое время окончания:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>В списке обработки:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Закрыть окно по окончании пакетной обработки</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Проверено:</translation>
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
        <translation>Пакетная обработка - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Какой вид пакетной обработки открыть?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Вид пакетной обработки</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Развернуть окно пакетной обработки</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Папка:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Обзор...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Перетащите сюда файлы, папку или папки (или нажмите «Добавить файлы», «Добавить папку» или «Добавить папки»). Программа сама выберет только поддерживаемые файлы.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> В списке: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Всего проверено: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>Добавить &amp;файлы...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>Добавить &amp;папку...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>Добавить п&amp;апки...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>Добавить &amp;списки воспроизведения...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>Переместить &amp;вниз</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>Переместить вв&amp;ерх</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>&amp;Отметить все</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>Снять о&amp;тметки</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>У&amp;далить все</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>&amp;Действия</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Проверка</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Воспроизведение</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>&amp;Воспроизведение / пауза</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>С&amp;топ</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Громкость</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Громче</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Тише</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>&amp;Предыдущий</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>С&amp;ледующий</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Окно</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>Пов&amp;ерх всех окон</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>П&amp;араметры</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>&amp;Использовать базу данных</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>О&amp;чистить базу данных</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>&amp;База данных...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Использовать все &amp;ядра процессора</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Справка Tonvane</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Панель инструментов</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Добавить файлы (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Добавить папку (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Добавить папки (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Добавить списки воспроизведения (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Переместить вниз (Alt+Вниз)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Переместить вверх (Alt+Вверх)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Отметить все (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>Снять отметки (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Удалить (Del)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Удалить все (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Справка (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Закрыть (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Пиковый уровень</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Средний уровень</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Проверка</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Пакетная проверка</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Проигрыватель</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Пожалуйста, подождите: идёт подготовка списка файлов</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Добавить файлы </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Добавить списки воспроизведения</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Выберите папку</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Добавить папку - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Выберите папки</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Добавить папки - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>К сожалению, вы не выбрали ни одного файла. Выберите файл.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>База данных - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Максимальный размер базы данных:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> МБ</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Текущий размер базы данных: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Бит на отсчёт</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Каналы</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Частота</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Аудиоформат</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Размер</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Открыть...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>Пакетная &amp;обработка...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>Пока&amp;зывать</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>дБ</translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation>П&amp;роигрыватель</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>&amp;Случайный порядок</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>Повто&amp;р</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>Повтор вс&amp;ех</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Сигнал по окончании</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>&amp;Справка Tonvane</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>&amp;Домашняя страница Tonvane</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>&amp;О программе Tonvane...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Открыть (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Пакет</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Пакетная обработка (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Выход (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Имя файла:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Свойства</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Перегрузка</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Позиция</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Воспроизведение / пауза (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Стоп (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Случайный порядок (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Повтор (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Без звука (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Предыдущий (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Следующий (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Громкость</translation>
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
        <translation>Время:</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>Общее время:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(мс)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Проверка уровня громкости</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Больше не показывать</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Язык интерфейса</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Темы</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>К сожалению, справка программы не установлена.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>К сожалению, не удаётся открыть страницу справки %1.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>Ошибка инициализации библиотеки декодера faad. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>в файле MP4 не найдена корректная звуковая дорожка AAC.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>Не удалось прочитать файл MP4.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> не удаётся создать.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> имеет формат звуковых данных, не поддерживаемый программой.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> В файле больше 2 каналов.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> пуст и не содержит звуковых данных.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>Открытие файла остановлено, так как файл содержит ошибки.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> создать отображение файла в память невозможно</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Поэтому проверка будет остановлена.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Он создан версией Monkey&apos;s Audio старше 3.99, которую программа не декодирует.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. Это не файл Monkey&apos;s Audio, или его заголовок повреждён.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>К сожалению, при открытии потока декодирования произошла ошибка.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> Файл </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> обрывается внутри звуковых данных.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> повреждён: его звуковые данные не проходят проверку.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Аудиоформат    APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>К сожалению, проверка остановлена, так как файл </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> пуст и не содержит звуковых данных. Пожалуйста, выберите другой файл.
Открыть диалог выбора файла?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>Ошибка в потоке привела к потере синхронизации декодера.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>Декодер обнаружил повреждённый заголовок кадра.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> Данные кадра не совпадают с контрольной суммой CRC в его конце.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>Декодер обнаружил в потоке использованные зарезервированные поля.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Аудиоформат    FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Файлы Wave (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Пакетная обработка Wav - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> не содержит файлов Wav.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>Файлы MP3 (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Пакетная обработка Mp3 - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> не содержит файлов Mp3.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>Файлы FLAC (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>Пакетная обработка FLAC - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> не содержит файлов FLAC.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Файлы Ogg (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Пакетная обработка Ogg - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> не содержит файлов Ogg.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>Файлы APE (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>Пакетная обработка APE - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> не содержит файлов APE.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>Файлы AAC/ALAC (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Пакетная обработка Mp4 (AAC, ALAC) - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> не содержит файлов Mp4.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Все файлы (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>Список воспроизведения M3U (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Битрейт        </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> кбит/с</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Каналы         </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Частота        </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Гц</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Аудиоформат    MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Аудиоформат    MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Аудиоформат    MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 дБ</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> выполнить не удалось.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Битрейт        </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Режим          Стерео</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Режим          Joint Stereo</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Режим          Два канала</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Режим          Моно</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>Метод кодирования</translation>
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
        <translation>отобразить файл данных в адресное пространство процесса</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Размер         </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>создать копию дескриптора потока копирования файла</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> не содержит звуковых данных. Поэтому проверка невозможна.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Аудиоформат    Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>К сожалению, имя файла неверно. Пожалуйста, выберите другой файл.
Открыть диалог выбора файла?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>К сожалению, имя файла с расширением &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> не поддерживается программой. Пожалуйста, выберите другой файл.
Открыть диалог выбора файла?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> байт</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> КБ</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> ГБ</translation>
    </message>
    <message>
        <source>Open      </source>
        <translation>Открыть      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> имеет формат звуковых данных, не поддерживаемый программой. Поэтому проверка невозможна. Пожалуйста, выберите другой файл.
Открыть диалог выбора файла?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Бит на отсчёт  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Каналы         </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Частота        </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>Не удалось открыть поток преобразования данных</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Аудиоформат    PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Поэтому проверка невозможна. Пожалуйста, выберите другой файл.
Открыть диалог выбора файла?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, пуст и не содержит звуковых данных.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> не содержит звуковых данных, характерных для файлов Wav.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Бит на отсчёт  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Бит на отсчёт  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Бит на отсчёт  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Бит на отсчёт  32</translation>
    </message>
    <message>
        <source>100% = 41 dB</source>
        <translation>100% = 41 дБ</translation>
    </message>
    <message>
        <source>100% = 137 dB</source>
        <translation>100% = 137 дБ</translation>
    </message>
    <message>
        <source>100% = 185 dB</source>
        <translation>100% = 185 дБ</translation>
    </message>
    <message>
        <source>Mono Channel</source>
        <translation>Моно</translation>
    </message>
    <message>
        <source>Left Channel</source>
        <translation>Левый канал</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>Правый канал</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>создать объект отображения файла невозможно</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Каналы         1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Каналы         2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Аудиоформат    PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>К сожалению, для файла </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> переместить указатель текущей позиции файла невозможно. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Поэтому сохранение будет остановлено.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>К сожалению, при записи в выходной файл произошла ошибка: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> К сожалению, программа не может продолжить работу с файлом: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Максимальный уровень</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Уровень громкости</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(пиковый уровень)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(средний уровень)</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> дБ</translation>
    </message>
    <message>
        <source>100% = </source>
        <translation>100% = </translation>
    </message>
    <message>
        <source>Max Level </source>
        <translation>Макс. уровень </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> открыть временную копию файла </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>К сожалению, при открытии файла &quot;TestLog.csv&quot; произошла ошибка.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>База данных успешно очищена</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Нет доступного звукового устройства.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Громкость&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Предыдущий&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Следующий&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Повтор&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Позиция&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Воспроизведение&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Стоп&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Без звука&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Пауза&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Случайный порядок&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Ошибок нет.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Не найден свободный канал для воспроизведения звука. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>Канал уже используется для воспроизведения другого звука. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Ошибка загрузки файла. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Не удалось выполнить перемотку. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>Файл закончился раньше, чем из него удалось прочитать звук. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Файл не найден. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Неподдерживаемый формат файла или звука. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>Звуковая система не готова к этому вызову. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Использован недействительный дескриптор объекта. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>Функции передан недопустимый параметр. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>Функции передана недопустимая позиция перемотки. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Недостаточно памяти или ресурсов. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Ошибка инициализации устройства вывода звука. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>Звуковая система ещё не инициализирована. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Неизвестная ошибка.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> не найдена.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>К сожалению, папку </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> не удаётся прочитать: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>№</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Усиление</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Ошибки</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Частота</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Каналы</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Аудиоформат</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Битрейт</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>Бит</translation>
    </message>
    <message>
        <source> TB</source>
        <translation> ТБ</translation>
    </message>
    <message>
        <source> not tested</source>
        <translation> не проверено</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> проверено</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Всего:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Размер: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Частота: </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>Бит: </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Режим:</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>Каналы: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Длительность: </translation>
    </message>
    <message>
        <source> file</source>
        <translation> файл</translation>
    </message>
    <message>
        <source> files</source>
        <translation> файлов</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Общая длительность: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>К сожалению, вы не выбрали ни одного файла. Поэтому пакетная проверка остановлена.</translation>
    </message>
    <message>
        <source> hr </source>
        <translation> ч </translation>
    </message>
    <message>
        <source> min </source>
        <translation> мин </translation>
    </message>
    <message>
        <source> sec</source>
        <translation> с</translation>
    </message>
    <message>
        <source> from </source>
        <translation> из </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> выполнено</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Пожалуйста, подождите: идёт пакетная проверка</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Проверка приостановлена</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Проверка отменена</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>К сожалению, открытую папку </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>К сожалению, проверка уровня громкости остановлена, так как файл </translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> Стерео</translation>
    </message>
    <message>
        <source> Joint Stereo</source>
        <translation> Joint Stereo</translation>
    </message>
    <message>
        <source> Dual Channels</source>
        <translation> Два канала</translation>
    </message>
    <message>
        <source> Mono</source>
        <translation> Моно</translation>
    </message>
    <message>
        <source>PCM IEEE Float</source>
        <translation>PCM IEEE Float</translation>
    </message>
    <message>
        <source>PCM (Pulse-Code Modulation)</source>
        <translation>PCM (импульсно-кодовая модуляция)</translation>
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
        <translation>Левый: </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation>; Правый: </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>Моно: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>К сожалению, не удаётся открыть домашнюю страницу %1.</translation>
    </message>
</context>
</TS>

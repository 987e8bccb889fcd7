<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en">
<context>
    <name>Tonvane</name>
    <message>
        <source>This program is free software under the GNU General Public License, version 2 or later. It comes with no warranty.</source>
        <translation>Bu program, GNU Genel Kamu Lisansı sürüm 2 veya sonrası altında özgür bir yazılımdır. Hiçbir garanti verilmeden sunulur.</translation>
    </message>
    <message>
        <source>  Copying of the file is fulfilling</source>
        <translation>  Dosya kopyalanıyor</translation>
    </message>
    <message>
        <source> impossible. Because the file does not exist.</source>
        <translation>: mümkün değil, çünkü dosya yok.</translation>
    </message>
    <message>
        <source> impossible. Because the file path does not exist.</source>
        <translation>: mümkün değil, çünkü dosyanın yolu yok.</translation>
    </message>
    <message>
        <source>. Because too many files are opened.</source>
        <translation>, çünkü çok fazla dosya açık.</translation>
    </message>
    <message>
        <source> impossible. Because access to the file is prohibited.</source>
        <translation>: mümkün değil, çünkü dosyaya erişim engellendi.</translation>
    </message>
    <message>
        <source> impossible. Because of the incorrect file name, name of folder or disk name.</source>
        <translation>: mümkün değil, çünkü dosya, klasör veya sürücü adı geçersiz.</translation>
    </message>
    <message>
        <source> impossible. Because the file name or its extension is too long.</source>
        <translation>: mümkün değil, çünkü dosya adı ya da uzantısı çok uzun.</translation>
    </message>
    <message>
        <source> impossible. Because the system cannot get access to the file.</source>
        <translation>: mümkün değil, çünkü sistem dosyaya erişemiyor.</translation>
    </message>
    <message>
        <source>Sorry, but </source>
        <translation>Üzgünüz: </translation>
    </message>
    <message>
        <source>the file </source>
        <translation>dosya </translation>
    </message>
    <message>
        <source> impossible. </source>
        <translation> mümkün değil. </translation>
    </message>
    <message>
        <source> cannot be opened</source>
        <translation> açılamıyor</translation>
    </message>
    <message>
        <source>Sorry, but the type of this file is not supported.</source>
        <translation>Üzgünüz, bu dosya türü desteklenmiyor.</translation>
    </message>
    <message>
        <source>Sorry, but the file </source>
        <translation>Üzgünüz: dosya </translation>
    </message>
    <message>
        <source>Sorry, but the peak test is not offered for MP3 files; use the average test.</source>
        <translation>Üzgünüz, MP3 dosyaları için tepe seviyesi testi yok; ortalama seviye testini kullanın.</translation>
    </message>
    <message>
        <source>Sorry but the file </source>
        <translation>Üzgünüz: dosya </translation>
    </message>
    <message>
        <source> has errors. </source>
        <translation> hatalar içeriyor. </translation>
    </message>
    <message>
        <source>Sorry, but the test of the file </source>
        <translation>Üzgünüz, dosya </translation>
    </message>
    <message>
        <source> has failed.</source>
        <translation> için test başarısız oldu.</translation>
    </message>
    <message>
        <source>  Test is stopped</source>
        <translation>  Test durduruldu</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file was not opened for it.
Do You want to open a dialog of selection a file?</source>
        <translation>Dosya bu test için açılmadığından test durduruldu.
Bir dosya seçmek ister misiniz?</translation>
    </message>
    <message>
        <source>  Test of the volume level is fulfilling</source>
        <translation>  Ses seviyesi test ediliyor</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped, because of failure to create a temporal copy of the file </source>
        <translation>Üzgünüz, şu dosyanın geçici kopyası oluşturulamadığı için test durduruldu: </translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Sorry, the test is stopped because the file has errors.</source>
        <translation>Dosyada hatalar olduğu için test durduruldu.</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Rusça</translation>
    </message>
    <message>
        <source>English</source>
        <translation>İngilizce</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Almanca</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>İspanyolca</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Fransızca</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>İtalyanca</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Felemenkçe</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portekizce</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>Norveççe</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>Danca</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Türkçe</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Lehçe</translation>
    </message>
    <message>
        <source>Croatian</source>
        <translation>Hırvatça</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Çince</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Korece</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>Çekçe</translation>
    </message>
    <message>
        <source>Slovenian</source>
        <translation>Slovence</translation>
    </message>
    <message>
        <source>Program should be restarted to set another interface language.</source>
        <translation>Arayüz dilini değiştirmek için programı yeniden başlatın.</translation>
    </message>
    <message>
        <source>Sorry, but the copy of this program is already launched and it is fulfilling. Therefore the launch of this copy program will be stopped.</source>
        <translation>Üzgünüz, bu programın bir kopyası zaten çalışıyor. Bu nedenle bu kopya başlatılmayacak.</translation>
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
        <translation>&amp;Gri</translation>
    </message>
    <message>
        <source>About Tonvane</source>
        <translation>Tonvane Hakkında</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>Measures how loud audio files are: the peak level and the average level against the 89 dB reference.</source>
        <translation>Ses dosyalarının ne kadar yüksek olduğunu ölçer: tepe seviyesini ve 89 dB referansına göre ortalama seviyeyi.</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>E-posta:</translation>
    </message>
    <message>
        <source>Web site:</source>
        <translation>Web sitesi:</translation>
    </message>
    <message>
        <source>Libraries in use:</source>
        <translation>Kullanılan kütüphaneler:</translation>
    </message>
    <message>
        <source>Please, wait the search files is fulfilling</source>
        <translation>Lütfen bekleyin, dosyalar aranıyor</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
    <message>
        <source>Processing: </source>
        <translation>İşleniyor: </translation>
    </message>
    <message>
        <source>The list of files</source>
        <translation>Dosya listesi</translation>
    </message>
    <message>
        <source>Size All Columns to Fit</source>
        <translation>Tüm sütunları sığdır</translation>
    </message>
    <message>
        <source>Size Column To Fit</source>
        <translation>Sütunu sığdır</translation>
    </message>
    <message>
        <source>Batch Processing...</source>
        <translation>Toplu İşlem...</translation>
    </message>
    <message>
        <source>Test of the file:</source>
        <translation>Test edilen dosya:</translation>
    </message>
    <message>
        <source>Batch Test...</source>
        <translation>Toplu Test...</translation>
    </message>
    <message>
        <source>Estimated time of completion:</source>
        <translation>Tahmini bitiş:</translation>
    </message>
    <message>
        <source>The list of processing contains:</source>
        <translation>İşlenecek listede:</translation>
    </message>
    <message>
        <source>Close the window when the Batch Processing is finished</source>
        <translation>Toplu işlem bitince pencereyi kapat</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Tested:</source>
        <translation>Test edilen:</translation>
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
        <translation>Toplu İşlem - Tonvane 1.0</translation>
    </message>
    <message>
        <source>What type of the Batch Processor do You wish to open?</source>
        <translation>Hangi tür toplu işlemi açmak istiyorsunuz?</translation>
    </message>
    <message>
        <source>Type of the Batch Processor</source>
        <translation>Toplu işlem türü</translation>
    </message>
    <message>
        <source>Maximize window of the Batch Processor</source>
        <translation>Toplu işlem penceresini büyüt</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Klasör:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Gözat...</translation>
    </message>
    <message>
        <source>Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). Program will automatically choose only supported files.</source>
        <translation>Dosyaları veya klasörleri buraya sürükleyin (ya da Dosya ekle, Klasör ekle veya Klasörler ekle düğmesine basın). Program yalnızca desteklenen dosyaları kendisi seçer.</translation>
    </message>
    <message>
        <source> The list contains: </source>
        <translation> Listede: </translation>
    </message>
    <message>
        <source> Total Checked: </source>
        <translation> Toplam denetlenen: </translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>&amp;Add Files...</source>
        <translation>&amp;Dosya ekle...</translation>
    </message>
    <message>
        <source>A&amp;dd Folder...</source>
        <translation>Klas&amp;ör ekle...</translation>
    </message>
    <message>
        <source>Add &amp;Folders...</source>
        <translation>K&amp;lasörler ekle...</translation>
    </message>
    <message>
        <source>Add &amp;Playlists...</source>
        <translation>&amp;Çalma listesi ekle...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Kapat</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Dü&amp;zen</translation>
    </message>
    <message>
        <source>&amp;Move Down</source>
        <translation>&amp;Aşağı taşı</translation>
    </message>
    <message>
        <source>M&amp;ove Up</source>
        <translation>&amp;Yukarı taşı</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>&amp;Tümünü işaretle</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>İşa&amp;retleri kaldır</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Sil</translation>
    </message>
    <message>
        <source>R&amp;emove All</source>
        <translation>Tü&amp;münü sil</translation>
    </message>
    <message>
        <source>Ac&amp;tions</source>
        <translation>&amp;Eylemler</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Oynatma</translation>
    </message>
    <message>
        <source>Play / Pa&amp;use</source>
        <translation>Oynat / &amp;duraklat</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>D&amp;urdur</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Ses</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Artır</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Azalt</translation>
    </message>
    <message>
        <source>P&amp;revious</source>
        <translation>Ö&amp;nceki</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>S&amp;onraki</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Pencere</translation>
    </message>
    <message>
        <source>&amp;Always on Top</source>
        <translation>&amp;Her zaman üstte</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Seçenekler</translation>
    </message>
    <message>
        <source>&amp;Use Database</source>
        <translation>Veritabanını &amp;kullan</translation>
    </message>
    <message>
        <source>&amp;Clear Database</source>
        <translation>Veritabanını t&amp;emizle</translation>
    </message>
    <message>
        <source>&amp;Database...</source>
        <translation>&amp;Veritabanı...</translation>
    </message>
    <message>
        <source>Use &amp;All Processor Cores</source>
        <translation>Tüm işlemci &amp;çekirdeklerini kullan</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Yardım</translation>
    </message>
    <message>
        <source>Help Tonvane</source>
        <translation>Tonvane Yardımı</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Araç Çubuğu</translation>
    </message>
    <message>
        <source>Add Files (Ctrl+F)</source>
        <translation>Dosya ekle (Ctrl+F)</translation>
    </message>
    <message>
        <source>Add Folder (Ctrl+D)</source>
        <translation>Klasör ekle (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add Folders (Ctrl+Q)</source>
        <translation>Klasörler ekle (Ctrl+Q)</translation>
    </message>
    <message>
        <source>Add Playlists (Ctrl+M)</source>
        <translation>Çalma listesi ekle (Ctrl+M)</translation>
    </message>
    <message>
        <source>Move Down (Alt+Down)</source>
        <translation>Aşağı taşı (Alt+Aşağı)</translation>
    </message>
    <message>
        <source>Move Up (Alt+Up)</source>
        <translation>Yukarı taşı (Alt+Yukarı)</translation>
    </message>
    <message>
        <source>Check All (Ctrl+A)</source>
        <translation>Tümünü işaretle (Ctrl+A)</translation>
    </message>
    <message>
        <source>Uncheck All (Ctrl+B)</source>
        <translation>İşaretleri kaldır (Ctrl+B)</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Sil (Del)</translation>
    </message>
    <message>
        <source>Remove All (Ctrl+Del)</source>
        <translation>Tümünü sil (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Help (F1)</source>
        <translation>Yardım (F1)</translation>
    </message>
    <message>
        <source>Close (Alt+F4)</source>
        <translation>Kapat (Alt+F4)</translation>
    </message>
    <message>
        <source>Test Peak Level</source>
        <translation>Tepe seviyesini test et</translation>
    </message>
    <message>
        <source>Test Average Level</source>
        <translation>Ortalama seviyeyi test et</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Batch Test</source>
        <translation>Toplu Test</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Oynatıcı</translation>
    </message>
    <message>
        <source>Please, wait the preparation of the list files is fulfilling</source>
        <translation>Lütfen bekleyin, dosya listesi hazırlanıyor</translation>
    </message>
    <message>
        <source>Add Files </source>
        <translation>Dosya ekle </translation>
    </message>
    <message>
        <source>Add Playlists</source>
        <translation>Çalma listesi ekle</translation>
    </message>
    <message>
        <source>Select Your Folder</source>
        <translation>Klasörünüzü seçin</translation>
    </message>
    <message>
        <source>Add Folder - Tonvane 1.0</source>
        <translation>Klasör ekle - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Select Your Folders</source>
        <translation>Klasörlerinizi seçin</translation>
    </message>
    <message>
        <source>Add Folders - Tonvane 1.0</source>
        <translation>Klasörler ekle - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but You do not select any file. Select any file.</source>
        <translation>Üzgünüz, hiç dosya seçmediniz. Bir dosya seçin.</translation>
    </message>
    <message>
        <source>Database - Tonvane 1.0</source>
        <translation>Veritabanı - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Maximum size the Database:</source>
        <translation>Veritabanının azami boyutu:</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Current size the Database: </source>
        <translation>Veritabanının şu anki boyutu: </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source> Bits on Readout</source>
        <translation> Bit derinliği</translation>
    </message>
    <message>
        <source> Channels</source>
        <translation> Kanallar</translation>
    </message>
    <message>
        <source> Frequency</source>
        <translation> Frekans</translation>
    </message>
    <message>
        <source> Audio Format</source>
        <translation> Ses biçimi</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Boyut</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Daha fazla</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Aç...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>Çık&amp;ış</translation>
    </message>
    <message>
        <source>&amp;Batch Processor...</source>
        <translation>T&amp;oplu İşlem...</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Göster</translation>
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
        <translation>&amp;Oynatıcı</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Sessiz</translation>
    </message>
    <message>
        <source>&amp;Shuffle</source>
        <translation>&amp;Karışık</translation>
    </message>
    <message>
        <source>&amp;Repeat</source>
        <translation>&amp;Tekrarla</translation>
    </message>
    <message>
        <source>R&amp;epeat All</source>
        <translation>T&amp;ümünü tekrarla</translation>
    </message>
    <message>
        <source>&amp;Beep when finished</source>
        <translation>&amp;Bitince bip sesi</translation>
    </message>
    <message>
        <source>Help &amp;Tonvane</source>
        <translation>Tonvane &amp;Yardımı</translation>
    </message>
    <message>
        <source>&amp;Open Homepage Tonvane</source>
        <translation>Tonvane &amp;web sitesini aç</translation>
    </message>
    <message>
        <source>&amp;About Tonvane...</source>
        <translation>Tonvane &amp;Hakkında...</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Open (Ctrl+O)</source>
        <translation>Aç (Ctrl+O)</translation>
    </message>
    <message>
        <source>Batch</source>
        <translation>Toplu</translation>
    </message>
    <message>
        <source>Batch Processor (Ctrl+P)</source>
        <translation>Toplu İşlem (Ctrl+P)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>Exit (Ctrl+X)</source>
        <translation>Çıkış (Ctrl+X)</translation>
    </message>
    <message>
        <source>File Name:</source>
        <translation>Dosya adı:</translation>
    </message>
    <message>
        <source> Property</source>
        <translation> Özellikler</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Kırpılma</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Konum</translation>
    </message>
    <message>
        <source>Play / Pause (Ctrl+U)</source>
        <translation>Oynat / duraklat (Ctrl+U)</translation>
    </message>
    <message>
        <source>Stop (Ctrl+T)</source>
        <translation>Durdur (Ctrl+T)</translation>
    </message>
    <message>
        <source>Shuffle (S)</source>
        <translation>Karışık (S)</translation>
    </message>
    <message>
        <source>Repeat (R)</source>
        <translation>Tekrarla (R)</translation>
    </message>
    <message>
        <source>Mute (F8)</source>
        <translation>Sessiz (F8)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Önceki (P)</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Sonraki (N)</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Ses</translation>
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
        <translation>Süre:</translation>
    </message>
    <message>
        <source>Total Time:</source>
        <translation>Toplam süre:</translation>
    </message>
    <message>
        <source>(ms)</source>
        <translation>(ms)</translation>
    </message>
    <message>
        <source>Test of the volume level</source>
        <translation>Ses seviyesi testi</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Bir daha gösterme</translation>
    </message>
    <message>
        <source>&amp;Interface Language</source>
        <translation>&amp;Arayüz dili</translation>
    </message>
    <message>
        <source>&amp;Themes</source>
        <translation>&amp;Temalar</translation>
    </message>
    <message>
        <source>Sorry, but the help of the program is not installed.</source>
        <translation>Üzgünüz, programın yardımı kurulu değil.</translation>
    </message>
    <message>
        <source>Sorry, but the help page %1 cannot be opened.</source>
        <translation>Üzgünüz, %1 yardım sayfası açılamıyor.</translation>
    </message>
    <message>
        <source>Error initializing decoder library faad. </source>
        <translation>faad kod çözücü kütüphanesi başlatılırken hata oluştu. </translation>
    </message>
    <message>
        <source>correct AAC sound track is impossible to find in the Mp4 file.</source>
        <translation>MP4 dosyasında geçerli bir AAC ses izi bulunamadı.</translation>
    </message>
    <message>
        <source>Reading was failed from Mp4 file.</source>
        <translation>MP4 dosyasından okuma başarısız oldu.</translation>
    </message>
    <message>
        <source> cannot be created.</source>
        <translation> oluşturulamıyor.</translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data.</source>
        <translation> programın desteklemediği bir ses verisi biçimine sahip.</translation>
    </message>
    <message>
        <source> The file has an amount of channels more than 2.</source>
        <translation> Dosyada 2&apos;den fazla kanal var.</translation>
    </message>
    <message>
        <source> is empty and does not contain any sound data.</source>
        <translation> boş ve hiç ses verisi içermiyor.</translation>
    </message>
    <message>
        <source>Sorry, the file opening was stopped because the file has errors.</source>
        <translation>Dosyada hatalar olduğundan açma işlemi durduruldu.</translation>
    </message>
    <message>
        <source> create a file mapping is impossible</source>
        <translation> dosyanın bellek eşlemesini oluşturmak mümkün değil</translation>
    </message>
    <message>
        <source>Therefore the test will be stopped.</source>
        <translation>Bu nedenle test durdurulacak.</translation>
    </message>
    <message>
        <source>. It was made by a version of Monkey&apos;s Audio older than 3.99, which the program does not decode.</source>
        <translation>. Programın çözemediği, 3.99&apos;dan eski bir Monkey&apos;s Audio sürümüyle oluşturulmuş.</translation>
    </message>
    <message>
        <source>. It is not a Monkey&apos;s Audio file, or its header is damaged.</source>
        <translation>. Bir Monkey&apos;s Audio dosyası değil ya da başlığı hasarlı.</translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred decoding stream.</source>
        <translation>Üzgünüz, kod çözme akışı açılırken bir hata oluştu.</translation>
    </message>
    <message>
        <source> The file </source>
        <translation> Dosya </translation>
    </message>
    <message>
        <source> ends inside its sound data.</source>
        <translation> ses verisinin ortasında bitiyor.</translation>
    </message>
    <message>
        <source> is damaged: its sound data does not pass its check.</source>
        <translation> hasarlı: ses verisi denetimden geçmiyor.</translation>
    </message>
    <message>
        <source>  Audio Format       APE</source>
        <translation>  Ses biçimi     APE</translation>
    </message>
    <message>
        <source>Sorry, but the test is stopped as the file </source>
        <translation>Üzgünüz, test durduruldu, çünkü dosya </translation>
    </message>
    <message>
        <source> is empty and does not contain a sound data. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> boş ve hiç ses verisi içermiyor. Lütfen başka bir dosya seçin.
Bir dosya seçmek ister misiniz?</translation>
    </message>
    <message>
        <source>An error in the stream caused the decoder to lose synchronization.</source>
        <translation>Akıştaki bir hata kod çözücünün eşzamanlamayı kaybetmesine yol açtı.</translation>
    </message>
    <message>
        <source>The decoder encountered a corrupted frame header.</source>
        <translation>Kod çözücü hasarlı bir çerçeve başlığıyla karşılaştı.</translation>
    </message>
    <message>
        <source> The frame&apos;s data do not match the CRC in the footer.</source>
        <translation> Çerçevenin verisi sondaki CRC ile uyuşmuyor.</translation>
    </message>
    <message>
        <source>The decoder encountered reserved fields in use in the stream.</source>
        <translation>Kod çözücü akışta kullanılan ayrılmış alanlarla karşılaştı.</translation>
    </message>
    <message>
        <source>  Audio Format      FLAC</source>
        <translation>  Ses biçimi     FLAC</translation>
    </message>
    <message>
        <source>Wave Files (*.wav; *.wave)</source>
        <translation>Wave dosyaları (*.wav; *.wave)</translation>
    </message>
    <message>
        <source>Wav Batch Processor - Tonvane 1.0</source>
        <translation>Wav Toplu İşlem - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Wav files.</source>
        <translation> hiç Wav dosyası içermiyor.</translation>
    </message>
    <message>
        <source>Mp3 Files (*.mp3; *.mpga)</source>
        <translation>MP3 dosyaları (*.mp3; *.mpga)</translation>
    </message>
    <message>
        <source>Mp3 Batch Processor - Tonvane 1.0</source>
        <translation>Mp3 Toplu İşlem - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp3 files.</source>
        <translation> hiç Mp3 dosyası içermiyor.</translation>
    </message>
    <message>
        <source>FLAC Files (*.flac; *.fla)</source>
        <translation>FLAC dosyaları (*.flac; *.fla)</translation>
    </message>
    <message>
        <source>FLAC Batch Processor - Tonvane 1.0</source>
        <translation>FLAC Toplu İşlem - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any FLAC files.</source>
        <translation> hiç FLAC dosyası içermiyor.</translation>
    </message>
    <message>
        <source>Ogg Files (*.ogg)</source>
        <translation>Ogg dosyaları (*.ogg)</translation>
    </message>
    <message>
        <source>Ogg Batch Processor - Tonvane 1.0</source>
        <translation>Ogg Toplu İşlem - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Ogg files.</source>
        <translation> hiç Ogg dosyası içermiyor.</translation>
    </message>
    <message>
        <source>APE Files (*.ape)</source>
        <translation>APE dosyaları (*.ape)</translation>
    </message>
    <message>
        <source>APE Batch Processor - Tonvane 1.0</source>
        <translation>APE Toplu İşlem - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any APE files.</source>
        <translation> hiç APE dosyası içermiyor.</translation>
    </message>
    <message>
        <source>AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</source>
        <translation>AAC/ALAC dosyaları (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)</translation>
    </message>
    <message>
        <source>Mp4 (AAC, ALAC) Batch Processor - Tonvane 1.0</source>
        <translation>Mp4 (AAC, ALAC) Toplu İşlem - Tonvane 1.0</translation>
    </message>
    <message>
        <source> does not contain any Mp4 files.</source>
        <translation> hiç Mp4 dosyası içermiyor.</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tüm dosyalar (*.*)</translation>
    </message>
    <message>
        <source>M3U Playlist (*.m3u;*.m3u8)</source>
        <translation>M3U çalma listesi (*.m3u;*.m3u8)</translation>
    </message>
    <message>
        <source>  Bit Rate               </source>
        <translation>  Bit hızı       </translation>
    </message>
    <message>
        <source> kbps</source>
        <translation> kbit/sn</translation>
    </message>
    <message>
        <source>  Channels            </source>
        <translation>  Kanallar       </translation>
    </message>
    <message>
        <source>  Sample Rate       </source>
        <translation>  Örnekleme      </translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 AAC LC</source>
        <translation>  Ses biçimi     MPEG-4 AAC LC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-2 AAC</source>
        <translation>  Ses biçimi     MPEG-2 AAC</translation>
    </message>
    <message>
        <source>  Audio Format      MPEG-4 ALAC</source>
        <translation>  Ses biçimi     MPEG-4 ALAC</translation>
    </message>
    <message>
        <source>100% = 89 dB</source>
        <translation>100% = 89 dB</translation>
    </message>
    <message>
        <source> was not possible to fulfill.</source>
        <translation> gerçekleştirilemedi.</translation>
    </message>
    <message>
        <source>  Bit Rate              </source>
        <translation>  Bit hızı       </translation>
    </message>
    <message>
        <source>  Mode                  Stereo</source>
        <translation>  Kip            Stereo</translation>
    </message>
    <message>
        <source>  Mode                  Joint Stereo</source>
        <translation>  Kip            Ortak stereo</translation>
    </message>
    <message>
        <source>  Mode                  Dual Channels</source>
        <translation>  Kip            Çift kanal</translation>
    </message>
    <message>
        <source>  Mode                  Mono</source>
        <translation>  Kip            Mono</translation>
    </message>
    <message>
        <source>  </source>
        <translation>  </translation>
    </message>
    <message>
        <source>Coding Method</source>
        <translation>Kodlama yöntemi</translation>
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
        <translation>dosyayı işlemin adres alanına eşlemek</translation>
    </message>
    <message>
        <source>  Size                    </source>
        <translation>  Boyut          </translation>
    </message>
    <message>
        <source>create a copy of the flow descriptor copying the file is</source>
        <translation>dosyayı kopyalamak için tanımlayıcının kopyasını oluşturmak</translation>
    </message>
    <message>
        <source> does not contain a sound data. Therefore the test is impossible.</source>
        <translation> hiç ses verisi içermiyor. Bu nedenle test mümkün değil.</translation>
    </message>
    <message>
        <source>  Audio Format      Ogg Vorbis</source>
        <translation>  Ses biçimi     Ogg Vorbis</translation>
    </message>
    <message>
        <source> - Tonvane 1.0</source>
        <translation> - Tonvane 1.0</translation>
    </message>
    <message>
        <source>Sorry, but the file name is incorrect. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation>Üzgünüz, dosya adı geçersiz. Lütfen başka bir dosya seçin.
Bir dosya seçmek ister misiniz?</translation>
    </message>
    <message>
        <source>Sorry, but file name with extension &quot;</source>
        <translation>Üzgünüz, şu uzantılı dosya adı &quot;</translation>
    </message>
    <message>
        <source>&quot;, </source>
        <translation>&quot;, </translation>
    </message>
    <message>
        <source> is not supported by the program. Please, select another file.
Do You want to open a dialog of selection a file?</source>
        <translation> program tarafından desteklenmiyor. Lütfen başka bir dosya seçin.
Bir dosya seçmek ister misiniz?</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> bayt</translation>
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
        <translation>Aç      </translation>
    </message>
    <message>
        <source> has unsupported by the program a format of sound data. Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> programın desteklemediği bir ses verisi biçimine sahip. Bu nedenle test mümkün değil. Lütfen başka bir dosya seçin.
Bir dosya seçmek ister misiniz?</translation>
    </message>
    <message>
        <source>  Bits on Readout </source>
        <translation>  Bit derinliği  </translation>
    </message>
    <message>
        <source>  Channels             </source>
        <translation>  Kanallar       </translation>
    </message>
    <message>
        <source>  Frequency          </source>
        <translation>  Frekans        </translation>
    </message>
    <message>
        <source>A stream of data conversion did not succeed to open</source>
        <translation>Bir veri dönüştürme akışı açılamadı</translation>
    </message>
    <message>
        <source>  Audio Format      PCM</source>
        <translation>  Ses biçimi     PCM</translation>
    </message>
    <message>
        <source> Therefore the test is impossible. Please, select other file.
Do You want to open a dialog of selection a file?</source>
        <translation> Bu nedenle test mümkün değil. Lütfen başka bir dosya seçin.
Bir dosya seçmek ister misiniz?</translation>
    </message>
    <message>
        <source>, is empty and does not contain any sound data.</source>
        <translation>, boş ve hiç ses verisi içermiyor.</translation>
    </message>
    <message>
        <source> does not contain a sound data characteristic for the Wav files.</source>
        <translation> Wav dosyalarına özgü ses verisi içermiyor.</translation>
    </message>
    <message>
        <source>  Bits on Readout   8</source>
        <translation>  Bit derinliği  8</translation>
    </message>
    <message>
        <source>  Bits on Readout  16</source>
        <translation>  Bit derinliği  16</translation>
    </message>
    <message>
        <source>  Bits on Readout  24</source>
        <translation>  Bit derinliği  24</translation>
    </message>
    <message>
        <source>  Bits on Readout  32</source>
        <translation>  Bit derinliği  32</translation>
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
        <translation>Sol kanal</translation>
    </message>
    <message>
        <source>Right Channel</source>
        <translation>Sağ kanal</translation>
    </message>
    <message>
        <source> : </source>
        <translation> : </translation>
    </message>
    <message>
        <source>create object &quot;file-mapping object&quot; is impossible</source>
        <translation>dosya eşleme nesnesini oluşturmak mümkün değil</translation>
    </message>
    <message>
        <source>  Channels             1</source>
        <translation>  Kanallar       1</translation>
    </message>
    <message>
        <source>  Channels             2</source>
        <translation>  Kanallar       2</translation>
    </message>
    <message>
        <source>  Audio Format      PCM IEEE Float</source>
        <translation>  Ses biçimi     PCM IEEE Float</translation>
    </message>
    <message>
        <source>Sorry, but for file </source>
        <translation>Üzgünüz: şu dosya için </translation>
    </message>
    <message>
        <source> move pointer of current position of the file impossible. </source>
        <translation> dosyadaki geçerli konumu taşımak mümkün değil. </translation>
    </message>
    <message>
        <source>Therefore the saving operation will be stopped.</source>
        <translation>Bu nedenle kaydetme durdurulacak.</translation>
    </message>
    <message>
        <source>Sorry, but an error of write has occurred to the output file: </source>
        <translation>Üzgünüz, çıktı dosyasına yazarken bir hata oluştu: </translation>
    </message>
    <message>
        <source> Sorry, but the program can not continue operation with the file: </source>
        <translation> Üzgünüz, program şu dosyayla çalışmaya devam edemiyor: </translation>
    </message>
    <message>
        <source>Maximum Level</source>
        <translation>Azami seviye</translation>
    </message>
    <message>
        <source>Volume Level</source>
        <translation>Ses seviyesi</translation>
    </message>
    <message>
        <source>(Peak Level)</source>
        <translation>(tepe seviyesi)</translation>
    </message>
    <message>
        <source>(Average Level)</source>
        <translation>(ortalama seviye)</translation>
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
        <translation>Azami seviye </translation>
    </message>
    <message>
        <source> open a temporary copy of the file </source>
        <translation> dosyanın geçici bir kopyasını açmak </translation>
    </message>
    <message>
        <source>Sorry, but an error of opening has occurred the file &quot;TestLog.csv&quot;.</source>
        <translation>Üzgünüz, &quot;TestLog.csv&quot; dosyası açılırken bir hata oluştu.</translation>
    </message>
    <message>
        <source>The database has been successfully cleared</source>
        <translation>Veritabanı başarıyla temizlendi</translation>
    </message>
    <message>
        <source>No sound device is available.</source>
        <translation>Kullanılabilir bir ses aygıtı yok.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Volume&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Ses&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Previous&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Önceki&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Next&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Sonraki&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Repeat&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Tekrarla&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=greenvolume&gt;Seek&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=greenvolume&gt;Konum&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Play&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Oynat&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Stop&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Durdur&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Mute&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Sessiz&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=blue&gt;Pause&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=blue&gt;Duraklat&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>&lt;h3&gt;&lt;font color=orangebutton&gt;Shuffle&lt;/font&gt;&lt;/h3&gt;</source>
        <translation>&lt;h3&gt;&lt;font color=orangebutton&gt;Karışık&lt;/font&gt;&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>No errors.</source>
        <translation>Hata yok.</translation>
    </message>
    <message>
        <source>No free channel could be found to play the sound. </source>
        <translation>Sesi çalmak için boş kanal bulunamadı. </translation>
    </message>
    <message>
        <source>The specified channel has been reused to play another sound. </source>
        <translation>Belirtilen kanal başka bir sesi çalmak için yeniden kullanıldı. </translation>
    </message>
    <message>
        <source>Error loading file. </source>
        <translation>Dosya yüklenirken hata oluştu. </translation>
    </message>
    <message>
        <source>Couldn&apos;t perform seek operation. </source>
        <translation>Konuma atlanamadı. </translation>
    </message>
    <message>
        <source>The file ends before any sound could be read from it. </source>
        <translation>Dosya, herhangi bir ses okunamadan bitiyor. </translation>
    </message>
    <message>
        <source>File not found. </source>
        <translation>Dosya bulunamadı. </translation>
    </message>
    <message>
        <source>Unsupported file or audio format. </source>
        <translation>Desteklenmeyen dosya veya ses biçimi. </translation>
    </message>
    <message>
        <source>The sound system is not ready for this call. </source>
        <translation>Ses sistemi bu çağrıya hazır değil. </translation>
    </message>
    <message>
        <source>An invalid object handle was used. </source>
        <translation>Geçersiz bir nesne tanıtıcısı kullanıldı. </translation>
    </message>
    <message>
        <source>An invalid parameter was passed to this function. </source>
        <translation>Bu işleve geçersiz bir parametre verildi. </translation>
    </message>
    <message>
        <source>An invalid seek position was passed to this function. </source>
        <translation>Bu işleve geçersiz bir konum verildi. </translation>
    </message>
    <message>
        <source>Not enough memory or resources. </source>
        <translation>Yetersiz bellek veya kaynak. </translation>
    </message>
    <message>
        <source>Error initializing the sound output device. </source>
        <translation>Ses çıkış aygıtı başlatılırken hata oluştu. </translation>
    </message>
    <message>
        <source>The sound system has not been initialized yet. </source>
        <translation>Ses sistemi henüz başlatılmadı. </translation>
    </message>
    <message>
        <source>Unknown error.</source>
        <translation>Bilinmeyen hata.</translation>
    </message>
    <message>
        <source> cannot be found.</source>
        <translation> bulunamıyor.</translation>
    </message>
    <message>
        <source>Sorry, but the folder </source>
        <translation>Üzgünüz: klasör </translation>
    </message>
    <message>
        <source> cannot be read: </source>
        <translation> okunamıyor: </translation>
    </message>
    <message>
        <source>№</source>
        <translation>No</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Kazanç</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Hatalar</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Süre</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Örnekleme hızı</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanallar</translation>
    </message>
    <message>
        <source>Audio Format</source>
        <translation>Ses biçimi</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Kip</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>Bit hızı</translation>
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
        <translation> test edilmedi</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source> tested</source>
        <translation> test edildi</translation>
    </message>
    <message>
        <source> Total:</source>
        <translation> Toplam:</translation>
    </message>
    <message>
        <source>Size: </source>
        <translation>Boyut: </translation>
    </message>
    <message>
        <source>Sample Rate: </source>
        <translation>Örnekleme hızı: </translation>
    </message>
    <message>
        <source>Bits: </source>
        <translation>Bit: </translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Kip:</translation>
    </message>
    <message>
        <source>Channels: </source>
        <translation>Kanallar: </translation>
    </message>
    <message>
        <source>Duration: </source>
        <translation>Süre: </translation>
    </message>
    <message>
        <source> file</source>
        <translation> dosya</translation>
    </message>
    <message>
        <source> files</source>
        <translation> dosya</translation>
    </message>
    <message>
        <source>Total Duration: </source>
        <translation>Toplam süre: </translation>
    </message>
    <message>
        <source>Sorry, but You have not selected any files. Therefore the batch test is stopped.</source>
        <translation>Üzgünüz, hiç dosya seçmediniz. Bu nedenle toplu test durduruldu.</translation>
    </message>
    <message>
        <source> hr </source>
        <translation> sa </translation>
    </message>
    <message>
        <source> min </source>
        <translation> dk </translation>
    </message>
    <message>
        <source> sec</source>
        <translation> sn</translation>
    </message>
    <message>
        <source> from </source>
        <translation> / </translation>
    </message>
    <message>
        <source> Completed</source>
        <translation> tamamlandı</translation>
    </message>
    <message>
        <source>Please, wait the batch test is fulfilling</source>
        <translation>Lütfen bekleyin, toplu test sürüyor</translation>
    </message>
    <message>
        <source>Test is suspended</source>
        <translation>Test duraklatıldı</translation>
    </message>
    <message>
        <source>Test is cancelled</source>
        <translation>Test iptal edildi</translation>
    </message>
    <message>
        <source>Sorry, but the open folder </source>
        <translation>Üzgünüz: açık klasör </translation>
    </message>
    <message>
        <source>Sorry, but test of the volume level was stopped because the file </source>
        <translation>Üzgünüz, ses seviyesi testi durduruldu, çünkü dosya </translation>
    </message>
    <message>
        <source> Stereo</source>
        <translation> Stereo</translation>
    </message>
    <message>
        <source> Joint Stereo</source>
        <translation> Ortak stereo</translation>
    </message>
    <message>
        <source> Dual Channels</source>
        <translation> Çift kanal</translation>
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
        <translation>PCM (darbe kod modülasyonu)</translation>
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
        <translation>Sol: </translation>
    </message>
    <message>
        <source>; Right: </source>
        <translation>; Sağ: </translation>
    </message>
    <message>
        <source>Mono Channel: </source>
        <translation>Mono kanal: </translation>
    </message>
    <message>
        <source>Sorry, but the home page %1 cannot be opened.</source>
        <translation>Üzgünüz, %1 ana sayfası açılamıyor.</translation>
    </message>
</context>
</TS>

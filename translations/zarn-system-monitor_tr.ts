<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>Disk usage</source>
        <translation>Disk kullanımı</translation>
    </message>
    <message>
        <source>%1% available</source>
        <translation>%%1 kullanılabilir</translation>
    </message>
    <message>
        <source>No file system selected</source>
        <translation>Dosya sistemi seçilmedi</translation>
    </message>
</context>
<context>
    <name>DlgNice</name>
    <message>
        <source>Change priority</source>
        <translation>Önceliği Değiştir</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Öncelik</translation>
    </message>
    <message>
        <source>Very high priority</source>
        <translation>Çok yüksek öncelik</translation>
    </message>
    <message>
        <source>High priority</source>
        <translation>Yüksek öncelik</translation>
    </message>
    <message>
        <source>Normal priority</source>
        <translation>Normal öncelik</translation>
    </message>
    <message>
        <source>Low priority</source>
        <translation>Düşük öncelik</translation>
    </message>
    <message>
        <source>Very low priority</source>
        <translation>Çok düşük öncelik</translation>
    </message>
</context>
<context>
    <name>FSModel</name>
    <message>
        <source>Mountpoint</source>
        <translation>Bağlama noktası</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Aygıt</translation>
    </message>
    <message>
        <source>Total space</source>
        <translation>Toplam alan</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Boş alan</translation>
    </message>
    <message>
        <source>Available space</source>
        <translation>Kullanılabilir alan</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Name, command line, user or PID</source>
        <translation>Ad, komut satırı, kullanıcı veya PID</translation>
    </message>
    <message>
        <source>Find process</source>
        <translation>Süreç bul</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>FsDetails</name>
    <message>
        <source>No answer</source>
        <translation>Yanıt yok</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>System monitor</source>
        <translation>Sistem izleyici</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistem</translation>
    </message>
    <message>
        <source>localhost</source>
        <translation>localhost</translation>
    </message>
    <message>
        <source>Operating system</source>
        <translation>İşletim sistemi</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Çekirdek</translation>
    </message>
    <message>
        <source>Arch</source>
        <translation>Mimari</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Aygıtlar</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Bellek</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Boş alan</translation>
    </message>
    <message>
        <source>Free memory</source>
        <translation>Boş bellek</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Süreçler</translation>
    </message>
    <message>
        <source>File systems</source>
        <translation>Dosya sistemleri</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Aygıt</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Toplam</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Kullanılan</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Kullanılabilir</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Ağ</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Maske</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Gelen</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Giden</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Hatalar</translation>
    </message>
</context>
<context>
    <name>PageIntervals</name>
    <message>
        <source>Interval changing</source>
        <translation>Aralığı Değiştir</translation>
    </message>
    <message>
        <source>You can set time interval (in secs)
 between updates for page </source>
        <translation>Güncellemeler arasındaki süreyi (saniye olarak)
 ayarlayabilirsiniz. Sayfa: </translation>
    </message>
</context>
<context>
    <name>ProcModel</name>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Unable send signal to process. Reason - </source>
        <translation>Sürece sinyal gönderilemedi. Neden: </translation>
    </message>
    <message>
        <source>Unable change priority. Reason - </source>
        <translation>Öncelik değiştirilemedi. Neden: </translation>
    </message>
</context>
<context>
    <name>ProcessFiller</name>
    <message>
        <source>Running</source>
        <translation>Çalışıyor</translation>
    </message>
    <message>
        <source>Sleeping</source>
        <translation>Uyuyor</translation>
    </message>
    <message>
        <source>Uninterruptible</source>
        <translation>Kesilemez</translation>
    </message>
    <message>
        <source>Zombie</source>
        <translation>Zombi</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Durduruldu</translation>
    </message>
    <message>
        <source>Swapping</source>
        <translation>Takas ediliyor</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>Ölü</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Diğer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Kullanıcı</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Bellek</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Virtual memory</source>
        <translation>Sanal bellek</translation>
    </message>
    <message>
        <source>Shared memory</source>
        <translation>Paylaşılan bellek</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>Nice değeri</translation>
    </message>
    <message>
        <source>Parent PID</source>
        <translation>Üst PID</translation>
    </message>
    <message>
        <source>CPU time</source>
        <translation>CPU süresi</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Başlatıldı</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Komut satırı</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Bilinmiyor</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>İşlemci</translation>
    </message>
</context>
<context>
    <name>ProcessFinder</name>
    <message>
        <source>No process found</source>
        <translation>Süreç bulunamadı</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Process stopping</source>
        <translation>Süreci Durdur</translation>
    </message>
    <message>
        <source>Are you really want to stop process?
You would be able to resume it later.</source>
        <translation>Süreci gerçekten durdurmak istiyor musunuz?
Daha sonra sürdürebilirsiniz.</translation>
    </message>
    <message>
        <source>Process resuming</source>
        <translation>Süreci Sürdür</translation>
    </message>
    <message>
        <source>Are you really want to resume process?</source>
        <translation>Süreci gerçekten sürdürmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Process terminating</source>
        <translation>Süreci Sonlandır</translation>
    </message>
    <message>
        <source>Are you really want to terminate process?
Process will have ability to finish normally.</source>
        <translation>Süreci gerçekten sonlandırmak istiyor musunuz?
Süreç normal biçimde kapanabilecektir.</translation>
    </message>
    <message>
        <source>Process killing</source>
        <translation>Süreci Öldür</translation>
    </message>
    <message>
        <source>Are you really want to kill process?
Process will no have ability to finish normally.
All process data can be lost.</source>
        <translation>Süreci gerçekten öldürmek istiyor musunuz?
Süreç normal biçimde kapanamayacaktır.
Sürecin tüm verileri kaybolabilir.</translation>
    </message>
    <message>
        <source>Unknown signal</source>
        <translation>Bilinmeyen sinyal</translation>
    </message>
    <message>
        <source>Tree view</source>
        <translation>Ağaç görünümü</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>Tümünü genişlet</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>Tümünü daralt</translation>
    </message>
    <message>
        <source>All processes</source>
        <translation>Tüm süreçler</translation>
    </message>
    <message>
        <source>My processes</source>
        <translation>Süreçlerim</translation>
    </message>
    <message>
        <source>Stop process</source>
        <translation>Süreci durdur</translation>
    </message>
    <message>
        <source>Continue process</source>
        <translation>Süreci sürdür</translation>
    </message>
    <message>
        <source>Terminate process</source>
        <translation>Süreci sonlandır</translation>
    </message>
    <message>
        <source>Kill process</source>
        <translation>Süreci öldür</translation>
    </message>
    <message>
        <source>Change priority...</source>
        <translation>Önceliği değiştir...</translation>
    </message>
    <message>
        <source>Find process...</source>
        <translation>Süreç bul...</translation>
    </message>
    <message>
        <source>Complete tree</source>
        <translation>Tam ağaç</translation>
    </message>
    <message>
        <source>Copy row</source>
        <translation>Satırı kopyala</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Interval</source>
        <translation>Aralık</translation>
    </message>
    <message>
        <source>or</source>
        <translation>veya</translation>
    </message>
    <message>
        <source>Usage: zarn-system-monitor [tab]</source>
        <translation>Kullanım: zarn-system-monitor [sekme]</translation>
    </message>
    <message>
        <source>tab can be specified as:</source>
        <translation>Sekme şöyle belirtilebilir:</translation>
    </message>
    <message>
        <source> - first page with general system info</source>
        <translation> - birinci sayfa, genel sistem bilgileri</translation>
    </message>
    <message>
        <source> - second page with process list</source>
        <translation> - ikinci sayfa, süreç listesi</translation>
    </message>
    <message>
        <source> - third page with filesystem list</source>
        <translation> - üçüncü sayfa, dosya sistemi listesi</translation>
    </message>
    <message>
        <source> - fourth page with network info</source>
        <translation> - dördüncü sayfa, ağ bilgileri</translation>
    </message>
    <message>
        <source> B</source>
        <translation> B</translation>
    </message>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> GB</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>QProg</name>
    <message>
        <source>%1 %</source>
        <translation>%%1</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Sort &amp;by</source>
        <translation>&amp;Sırala</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Artan</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Azalan</translation>
    </message>
</context>
<context>
    <name>SystemFiles</name>
    <message>
        <source>The system monitor can&apos;t start: %1 can&apos;t be read. It needs the whole proc file system, mounted at /proc.</source>
        <translation>Sistem izleyici başlatılamıyor: %1 okunamıyor. /proc konumuna bağlanmış eksiksiz bir proc dosya sistemi gereklidir.</translation>
    </message>
</context>
<context>
    <name>TimeHisto</name>
    <message>
        <source>In</source>
        <translation>Gelen</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Giden</translation>
    </message>
    <message>
        <source>Network traffic</source>
        <translation>Ağ trafiği</translation>
    </message>
    <message>
        <source>In: %1, Out: %2</source>
        <translation>Gelen: %1, giden: %2</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Dü&amp;zen</translation>
    </message>
    <message>
        <source>Update interval</source>
        <translation>Güncelleme aralığı</translation>
    </message>
    <message>
        <source>General interval</source>
        <translation>“Genel” aralığı</translation>
    </message>
    <message>
        <source>Process interval</source>
        <translation>“Süreçler” aralığı</translation>
    </message>
    <message>
        <source>Filesystem interval</source>
        <translation>“Dosya sistemleri” aralığı</translation>
    </message>
    <message>
        <source>Network interval</source>
        <translation>“Ağ” aralığı</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Süreç</translation>
    </message>
    <message>
        <source>General page</source>
        <translation>“Genel”</translation>
    </message>
    <message>
        <source>Processes page</source>
        <translation>“Süreçler”</translation>
    </message>
    <message>
        <source>Filesystems page</source>
        <translation>“Dosya sistemleri”</translation>
    </message>
    <message>
        <source>Network page</source>
        <translation>“Ağ”</translation>
    </message>
    <message>
        <source>Visible columns</source>
        <translation>Görünür sütunlar</translation>
    </message>
    <message>
        <source>CPU load</source>
        <translation>CPU yükü</translation>
    </message>
    <message>
        <source>CPU core %1 load</source>
        <translation>CPU çekirdeği %1 yükü</translation>
    </message>
    <message>
        <source>CPU </source>
        <translation>CPU </translation>
    </message>
    <message>
        <source>Unknown OS</source>
        <translation>Bilinmeyen işletim sistemi</translation>
    </message>
</context>
<context>
    <name>ZarnHelpMenu</name>
    <message>
        <source>System monitor allows you to watch general system info, processes info, mount points and network stat.</source>
        <translation>Sistem izleyici; genel sistem bilgilerini, süreçleri, bağlama noktalarını ve ağ istatistiklerini izlemenizi sağlar.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>This is free software under the GNU General Public License, version 3 or later (GPL-3.0-or-later). It comes without any warranty.</source>
        <translation>Bu program, GNU Genel Kamu Lisansı sürüm 3 veya sonrası (GPL-3.0-or-later) altında özgür yazılımdır. Hiçbir garantisi yoktur.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Yardım</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Qt Hakkında</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1 Hakkında</translation>
    </message>
</context>
</TS>

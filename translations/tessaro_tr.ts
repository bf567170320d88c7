<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Program başlatılamıyor: %1. XDG_DATA_HOME ya da ~/.local/share içinde yazabileceği, bağlantı oluşturabileceği ve program çalıştırabileceği kendine ait bir klasöre gereksinimi var.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Program başlatılamıyor: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Pencerenin gösterileceği bir ekran yok.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>%1 seçeneği yok; --help ile bakın.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>%1 dosyası yok.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Görüntüleri PDF belgelerine dönüştürür.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Pencere açıldığında listelenecek görüntüler.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Bu yardımı göster ve çık.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Sürümü göster ve çık.</translation>
    </message>
</context>
<context>
    <name>HexSpinBox</name>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>inç</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro Görüntüden PDF’ye Dönüştürücü</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Dosya yok</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Lütfen dönüştürülecek dosyaları seçin.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Desteklenen tüm biçimler(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP dosyası(*.bmp);;GIF dosyası(*.gif);;JPEG dosyası(*.jpg;*.jpeg);;PBM dosyası(*.pbm);;PCX dosyası(*.pcx);;PNG dosyası(*.png);;PPM dosyası(*.ppm);;TIF dosyası(*.tif;*.tiff);;TÜM dosyalar(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Dönüştürülecek dosyaları seçin</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Dönüştürülen dosyaların kaydedileceği klasörü seçin.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Dosya listesi</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Dönüştürülecek görüntüler; eklemek için dosyaları buraya bırakın</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Önizleme</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Geçerli satırdaki görüntü</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Listeye görüntü ekle</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Seçili görüntüleri listeden çıkar</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Tümünü kaldır</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Listeyi boşalt</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Çıktı klasörü</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>PDF dosyalarının kaydedileceği klasör</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Çıktı klasörünü seç</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Tek PDF’de birleştir</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Tüm görüntülerden, adını ilkinden alan tek bir PDF oluştur</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Dönüştür</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Görüntüleri PDF’ye dönüştür</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Döndürme</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Saat yönünde derece; başka bir açı için yazıp Enter tuşuna basın</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Sayfa boyutu</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Her görüntüyü bu sayfaya sığdır</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Sıkıştırma</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Görüntülerin PDF’de nasıl saklanacağı</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Başlık</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>PDF’nin başlığı</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Konu</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>PDF’nin konusu</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Anahtar sözcükler</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>PDF’nin anahtar sözcükleri</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Yazar</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>PDF’nin yazarı</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Sahip parolası</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>İzinleri değiştirmek için gerekir; boşluk kullanılamaz</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Kullanıcı parolası</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>PDF’yi açmak için gerekir; boşluk kullanılamaz</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Dosyalar ve çıktı klasörü</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Sayfaların görünümü</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Açıklama</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>PDF’nin açıklaması</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Güvenlik</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Parolalar ve izinler</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Bu program hakkında</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Şimdiye kadar başlanan görüntüler</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Dosya listesi</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Tümünü kaldır</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Çıktı klasörü</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>PDF sayfalarının görünüm seçenekleri:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Sayfa boyutu</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Siyah beyaz PDF’ye dönüştür</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>PDF açıklama seçenekleri:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Güvenlik seçenekleri: PDF parolaları
ve izinleri:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Yazdırmaya izin ver</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Belge derlemeye izin ver</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>İçerik kopyalamaya izin ver</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Yorum eklemeye izin ver</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Görüntü dosyası</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Dosya boyutu</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>90</source>
        <translation>90</translation>
    </message>
    <message>
        <source>180</source>
        <translation>180</translation>
    </message>
    <message>
        <source>270</source>
        <translation>270</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>Bzip</source>
        <translation>Bzip</translation>
    </message>
    <message>
        <source>CCITT Group 3</source>
        <translation>CCITT Group 3</translation>
    </message>
    <message>
        <source>CCITT Group 4</source>
        <translation>CCITT Group 4</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>JPEG2000</source>
        <translation>JPEG2000</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Kayıpsız</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Dizi uzunluğu kodlaması</translation>
    </message>
    <message>
        <source>Zip</source>
        <translation>Zip</translation>
    </message>
    <message>
        <source>A0 (841x1189 mm)</source>
        <translation>A0 (841x1189 mm)</translation>
    </message>
    <message>
        <source>A1 (594x841 mm)</source>
        <translation>A1 (594x841 mm)</translation>
    </message>
    <message>
        <source>A2 (420x594 mm)</source>
        <translation>A2 (420x594 mm)</translation>
    </message>
    <message>
        <source>A3 (297x420 mm)</source>
        <translation>A3 (297x420 mm)</translation>
    </message>
    <message>
        <source>A4 (210x297 mm)</source>
        <translation>A4 (210x297 mm)</translation>
    </message>
    <message>
        <source>A5 (148x210 mm)</source>
        <translation>A5 (148x210 mm)</translation>
    </message>
    <message>
        <source>A6 (105x148 mm)</source>
        <translation>A6 (105x148 mm)</translation>
    </message>
    <message>
        <source>A7 (74x105 mm)</source>
        <translation>A7 (74x105 mm)</translation>
    </message>
    <message>
        <source>A8 (52x74 mm)</source>
        <translation>A8 (52x74 mm)</translation>
    </message>
    <message>
        <source>A9 (37x52 mm)</source>
        <translation>A9 (37x52 mm)</translation>
    </message>
    <message>
        <source>ArchA (229x305 mm)</source>
        <translation>ArchA (229x305 mm)</translation>
    </message>
    <message>
        <source>ArchB (305x457 mm)</source>
        <translation>ArchB (305x457 mm)</translation>
    </message>
    <message>
        <source>ArchC (457x610 mm)</source>
        <translation>ArchC (457x610 mm)</translation>
    </message>
    <message>
        <source>ArchD (610x914 mm)</source>
        <translation>ArchD (610x914 mm)</translation>
    </message>
    <message>
        <source>ArchE (914x1219 mm)</source>
        <translation>ArchE (914x1219 mm)</translation>
    </message>
    <message>
        <source>Ledger (431.8x279. 4mm)</source>
        <translation>Ledger (431.8x279.4 mm)</translation>
    </message>
    <message>
        <source>Legal (215.9x355.6 mm)</source>
        <translation>Legal (215.9x355.6 mm)</translation>
    </message>
    <message>
        <source>Letter (215.9x279.4 mm)</source>
        <translation>Letter (215.9x279.4 mm)</translation>
    </message>
    <message>
        <source>Tabloid (279.4x431.8 mm)</source>
        <translation>Tabloid (279.4x431.8 mm)</translation>
    </message>
    <message>
        <source>Drag rows or press %1 and %2 to change the order of the pages.</source>
        <translation>Sayfaların sırasını değiştirmek için satırları sürükleyin ya da %1 ve %2 tuşlarına basın.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Görüntüyü aç</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>PDF’yi aç</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Klasörde göster</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Yukarı taşı</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Aşağı taşı</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>En üste taşı</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>En alta taşı</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Ada göre sırala, 2 10’dan önce</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Eklenme sırasına göre sırala</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tümünü seç</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Görüntü ekle…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Sıfırla</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Tentang</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Program tidak dapat dimulai: %1. Program memerlukan folder sendiri, di XDG_DATA_HOME atau ~/.local/share, tempat ia dapat menulis, membuat tautan, dan menjalankan program.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Program tidak dapat dimulai: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Tidak ada layar untuk menampilkan jendela.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Tidak ada opsi %1; lihat --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Tidak ada berkas %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Mengubah gambar menjadi dokumen PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Gambar yang dimasukkan ke daftar saat jendela dibuka.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Tampilkan bantuan ini lalu keluar.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Tampilkan versi lalu keluar.</translation>
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
        <translation>inci</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro Konverter Gambar ke PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Tidak ada berkas</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Silakan pilih berkas yang akan dikonversi.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Semua format yang didukung(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;Berkas BMP(*.bmp);;Berkas GIF(*.gif);;Berkas JPEG(*.jpg;*.jpeg);;Berkas PBM(*.pbm);;Berkas PCX(*.pcx);;Berkas PNG(*.png);;Berkas PPM(*.ppm);;Berkas TIF(*.tif;*.tiff);;SEMUA berkas(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Pilih berkas yang akan dikonversi</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Pilih folder untuk menyimpan berkas hasil konversi.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Daftar berkas</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Gambar yang akan dikonversi; jatuhkan berkas di sini untuk menambahkannya</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pratinjau</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Gambar pada baris saat ini</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Buka</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Tambahkan gambar ke daftar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Keluarkan gambar terpilih dari daftar</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Hapus semua</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Kosongkan daftar</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Folder hasil</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Folder tempat berkas PDF disimpan</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Pilih folder hasil</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Gabungkan menjadi satu PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Buat satu PDF dari semua gambar, dinamai menurut gambar pertama</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Konversi</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Konversi gambar menjadi PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Putar</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Derajat searah jarum jam; untuk sudut lain, ketik lalu tekan Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Ukuran halaman</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Sesuaikan setiap gambar dengan halaman ini</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Kompresi</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Cara gambar disimpan dalam PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Judul</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Judul PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Subjek</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Subjek PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Kata kunci</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Kata kunci PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Penulis</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Penulis PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Kata sandi pemilik</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Diperlukan untuk mengubah izin; tanpa spasi</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Kata sandi pengguna</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Diperlukan untuk membuka PDF; tanpa spasi</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Berkas dan folder hasil</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Tampilan</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Tampilan halaman</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Deskripsi</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Deskripsi PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Keamanan</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Kata sandi dan izin</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Tentang</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Tentang program ini</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Kemajuan</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Gambar yang telah dimulai</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Daftar berkas</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Hapus semua</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Folder hasil</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Opsi tampilan halaman PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Ukuran halaman</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Ubah menjadi PDF hitam-putih</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Opsi deskripsi PDF:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Opsi keamanan: kata sandi dan izin
PDF:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Izinkan pencetakan</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Izinkan perakitan dokumen</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Izinkan penyalinan isi</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Izinkan komentar</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Berkas gambar</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Ukuran berkas</translation>
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
        <translation>Tidak ada</translation>
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
        <translation>Nirhilang</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Pengodean run-length</translation>
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
        <translation>Seret baris atau tekan %1 dan %2 untuk mengubah urutan halaman.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Buka gambar</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Buka PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Tampilkan di folder</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Pindah ke atas</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Pindah ke bawah</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Pindah ke paling atas</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Pindah ke paling bawah</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Urutkan menurut nama, 2 sebelum 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Urutkan menurut penambahan</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Pilih semua</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Tambahkan gambar…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Keluar</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Opsi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Atur ulang</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Nie można uruchomić programu: %1. Potrzebuje własnego katalogu w XDG_DATA_HOME lub ~/.local/share, w którym może zapisywać, tworzyć dowiązania i uruchamiać programy.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Nie można uruchomić programu: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Nie ma ekranu, na którym można wyświetlić okno.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Nie ma opcji %1; zobacz --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Nie ma pliku %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Zamienia obrazy na dokumenty PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Obrazy umieszczane na liście po otwarciu okna.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Wyświetla tę pomoc i kończy działanie.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Wyświetla wersję i kończy działanie.</translation>
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
        <translation>cale</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro Konwerter obrazów na PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Brak plików</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Wybierz pliki do konwersji.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Wszystkie obsługiwane formaty(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;Plik BMP(*.bmp);;Plik GIF(*.gif);;Plik JPEG(*.jpg;*.jpeg);;Plik PBM(*.pbm);;Plik PCX(*.pcx);;Plik PNG(*.png);;Plik PPM(*.ppm);;Plik TIF(*.tif;*.tiff);;WSZYSTKIE pliki(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Wybierz pliki do konwersji</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Wybierz folder, w którym zostaną zapisane przekonwertowane pliki.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Lista plików</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Obrazy do konwersji; upuść tutaj pliki, aby je dodać</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Obraz z bieżącego wiersza</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Dodaj obrazy do listy</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Usuń zaznaczone obrazy z listy</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Usuń wszystko</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Opróżnij listę</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Folder docelowy</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Folder, w którym zostaną zapisane pliki PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Wybierz folder docelowy</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Scal w jeden plik PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Utwórz jeden plik PDF ze wszystkich obrazów, nazwany jak pierwszy</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Konwertuj</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Konwertuj obrazy na PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Obrót</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Stopnie w prawo; aby użyć innego kąta, wpisz go i naciśnij Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Rozmiar strony</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Dopasuj każdy obraz do tej strony</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Kompresja</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Sposób zapisu obrazów w pliku PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Tytuł pliku PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Temat</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Temat pliku PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Słowa kluczowe</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Słowa kluczowe pliku PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Autor pliku PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Hasło właściciela</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Potrzebne do zmiany uprawnień; bez spacji</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Hasło użytkownika</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Potrzebne do otwarcia pliku PDF; bez spacji</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Pliki i folder docelowy</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Wygląd stron</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Opis pliku PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Zabezpieczenia</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Hasła i uprawnienia</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Informacje o programie</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Liczba rozpoczętych obrazów</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Lista plików</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Usuń wszystko</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Folder docelowy</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Opcje wyglądu stron pliku PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Rozmiar strony</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Konwertuj na czarno-biały PDF</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Opcje opisu pliku PDF:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Opcje zabezpieczeń: hasła i uprawnienia
pliku PDF:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Zezwól na drukowanie</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Zezwól na składanie dokumentu</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Zezwól na kopiowanie zawartości</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Zezwól na komentowanie</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Plik obrazu</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Rozmiar</translation>
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
        <translation>Brak</translation>
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
        <translation>Bezstratna</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Kodowanie długości serii</translation>
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
        <translation>Przeciągnij wiersze lub naciśnij %1 i %2, aby zmienić kolejność stron.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Otwórz obraz</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Otwórz PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Pokaż w folderze</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Przenieś w górę</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Przenieś w dół</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Przenieś na początek</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Przenieś na koniec</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Sortuj według nazwy, 2 przed 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Sortuj według kolejności dodania</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Dodaj obrazy…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Resetuj</translation>
    </message>
</context>
</TS>

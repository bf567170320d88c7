<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>A program nem indítható: %1. Saját mappára van szüksége az XDG_DATA_HOME vagy a ~/.local/share alatt, amelybe írhat, hivatkozásokat hozhat létre, és ahonnan programokat futtathat.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>A program nem indítható: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Nincs kijelző, amelyen az ablak megjelenhetne.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Nincs %1 kapcsoló; lásd: --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Nincs %1 fájl.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Képeket alakít PDF-dokumentummá.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Az ablak megnyitásakor a listára kerülő képek.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Megjeleníti ezt a súgót, és kilép.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Megjeleníti a verziót, és kilép.</translation>
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
        <translation>hüvelyk</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro Képből PDF-átalakító</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Nincsenek fájlok</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Válassza ki az átalakítandó fájlokat.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Minden támogatott formátum(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP-fájl(*.bmp);;GIF-fájl(*.gif);;JPEG-fájl(*.jpg;*.jpeg);;PBM-fájl(*.pbm);;PCX-fájl(*.pcx);;PNG-fájl(*.png);;PPM-fájl(*.ppm);;TIF-fájl(*.tif;*.tiff);;MINDEN fájl(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Átalakítandó fájlok kiválasztása</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Válasszon mappát az átalakított fájlok mentéséhez.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Fájllista</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Az átalakítandó képek; fájlok hozzáadásához húzza őket ide</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Előnézet</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Az aktuális sor képe</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Megnyitás</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Képek hozzáadása a listához</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>A kijelölt képek levétele a listáról</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Lista ürítése</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>A lista kiürítése</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Célmappa</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>A PDF-fájlok mappája</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Célmappa kiválasztása</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Egyesítés egyetlen PDF-be</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Egyetlen PDF készítése az összes képből, az első nevével</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Átalakítás</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>A képek átalakítása PDF-fé</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Forgatás</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Fok az óramutató járásával egyezően; más szöghöz írja be és nyomja meg az Entert</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Oldalméret</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Minden kép méretezése erre a lapra</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Tömörítés</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Hogyan tárolja a PDF a képeket</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Cím</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>A PDF címe</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Tárgy</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>A PDF tárgya</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Kulcsszavak</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>A PDF kulcsszavai</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Szerző</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>A PDF szerzője</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Tulajdonosi jelszó</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Az engedélyek módosításához szükséges; szóköz nélkül</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Felhasználói jelszó</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>A PDF megnyitásához szükséges; szóköz nélkül</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Fájlok és célmappa</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Megjelenés</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Az oldalak megjelenése</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Leírás</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>A PDF leírása</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Biztonság</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Jelszavak és engedélyek</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>A program névjegye</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Folyamat</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Az eddig elkezdett képek</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Fájllista</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Lista ürítése</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Célmappa</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>A PDF-oldalak megjelenésének beállításai:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Oldalméret</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Átalakítás fekete-fehér PDF-fé</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>A PDF leírásának beállításai:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Biztonsági beállítások: a PDF jelszavai
és engedélyei:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Nyomtatás engedélyezése</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Összeállítás engedélyezése</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Tartalom másolásának engedélyezése</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Megjegyzések engedélyezése</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Képfájl</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Fájlméret</translation>
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
        <translation>Nincs</translation>
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
        <translation>Veszteségmentes</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Futamhossz-kódolás</translation>
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
        <translation>Az oldalak sorrendje a sorok húzásával vagy az %1 és %2 billentyűkkel módosítható.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Kép megnyitása</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>PDF megnyitása</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Megjelenítés a mappában</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Mozgatás felfelé</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Mozgatás lefelé</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Mozgatás az elejére</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Mozgatás a végére</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Rendezés név szerint, 2 a 10 előtt</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Rendezés a hozzáadás sorrendjében</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Összes kijelölése</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Képek hozzáadása…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Kilépés</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Alaphelyzet</translation>
    </message>
</context>
</TS>

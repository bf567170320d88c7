<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Programmet kan inte starta: %1. Det behöver en egen mapp, i XDG_DATA_HOME eller ~/.local/share, där det kan skriva, skapa länkar och köra program.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Programmet kan inte starta: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Det finns ingen skärm att visa fönstret på.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Flaggan %1 finns inte; se --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Filen %1 finns inte.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Gör PDF-dokument av bilder.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Bilder som ska finnas i listan när fönstret öppnas.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Visa denna hjälp och avsluta.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Visa versionen och avsluta.</translation>
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
        <translation>tum</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro Bild till PDF-konverterare</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Inga filer</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Välj de filer som ska konverteras.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Alla format som stöds(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP-fil(*.bmp);;GIF-fil(*.gif);;JPEG-fil(*.jpg;*.jpeg);;PBM-fil(*.pbm);;PCX-fil(*.pcx);;PNG-fil(*.png);;PPM-fil(*.ppm);;TIF-fil(*.tif;*.tiff);;ALLA filer(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Välj filer att konvertera</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Välj en mapp att spara de konverterade filerna i.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Fillista</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Bilderna som ska konverteras; släpp filer här för att lägga till dem</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Förhandsvisning</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Bilden på den aktuella raden</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Lägg till bilder i listan</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Ta bort markerade bilder från listan</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Ta bort alla</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Töm listan</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Målmapp</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Mappen där PDF-filerna hamnar</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Välj målmapp</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Slå ihop till en PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Gör en PDF av alla bilder, med namn efter den första</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Konvertera</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Konvertera bilderna till PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotera</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Grader medurs; skriv en annan vinkel och tryck på Retur</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Sidstorlek</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Anpassa varje bild till den här sidan</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Komprimering</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Hur bilderna lagras i PDF-filen</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>PDF-filens titel</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Ämne</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>PDF-filens ämne</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Nyckelord</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>PDF-filens nyckelord</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Författare</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>PDF-filens författare</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Ägarlösenord</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Behövs för att ändra behörigheterna; inga blanksteg</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Användarlösenord</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Behövs för att öppna PDF-filen; inga blanksteg</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Filer och målmapp</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Utseende</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Sidornas utseende</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beskrivning</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>PDF-filens beskrivning</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Säkerhet</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Lösenord och behörigheter</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Om programmet</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Hittills påbörjade bilder</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Fillista</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Ta bort alla</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Målmapp</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Alternativ för PDF-sidornas utseende:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Sidstorlek</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Konvertera till svartvit PDF</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Alternativ för PDF-filens beskrivning:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Säkerhetsalternativ: lösenord och behörigheter
för PDF-filen:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Tillåt utskrift</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Tillåt dokumentsammansättning</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Tillåt kopiering av innehåll</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Tillåt kommentarer</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Bildfil</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Filstorlek</translation>
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
        <translation>Ingen</translation>
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
        <translation>Förlustfri</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Skurlängdskodning</translation>
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
        <translation>Dra rader eller tryck på %1 och %2 för att ändra sidornas ordning.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Öppna bild</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Öppna PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Visa i mapp</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Flytta upp</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Flytta ner</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Flytta överst</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Flytta nederst</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Sortera efter namn, 2 före 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Sortera i den ordning de lades till</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markera alla</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Lägg till bilder…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Alternativ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Återställ</translation>
    </message>
</context>
</TS>

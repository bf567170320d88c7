<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Despre</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Programul nu poate porni: %1. Are nevoie de un dosar propriu, în XDG_DATA_HOME sau ~/.local/share, în care să poată scrie, crea legături și rula programe.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Programul nu poate porni: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Nu există un ecran pe care să fie afișată fereastra.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Nu există opțiunea %1; vedeți --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Nu există fișierul %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Transformă imagini în documente PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Imaginile care apar în listă la deschiderea ferestrei.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Afișează acest ajutor și încheie.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Afișează versiunea și încheie.</translation>
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
        <translation>in</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro Convertor de imagini în PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Niciun fișier</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Alegeți fișierele de convertit.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Toate formatele acceptate(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;Fișier BMP(*.bmp);;Fișier GIF(*.gif);;Fișier JPEG(*.jpg;*.jpeg);;Fișier PBM(*.pbm);;Fișier PCX(*.pcx);;Fișier PNG(*.png);;Fișier PPM(*.ppm);;Fișier TIF(*.tif;*.tiff);;TOATE fișierele(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Alegeți fișierele de convertit</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Alegeți dosarul în care se salvează fișierele convertite.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Listă fișiere</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Imaginile de convertit; plasați fișiere aici pentru a le adăuga</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Previzualizare</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Imaginea rândului curent</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Deschide</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Adaugă imagini în listă</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Elimină</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Scoate din listă imaginile selectate</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Elimină tot</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Golește lista</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Dosar de ieșire</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Dosarul în care ajung fișierele PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Alege dosarul de ieșire</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Îmbină într-un singur PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Creează un singur PDF din toate imaginile, cu numele primeia</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertește</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Convertește imaginile în PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotire</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Grade în sens orar; pentru alt unghi, tastați-l și apăsați Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Dimensiune pagină</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Încadrează fiecare imagine în această pagină</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compresie</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Cum sunt stocate imaginile în PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titlu</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Titlul PDF-ului</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Subiect</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Subiectul PDF-ului</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Cuvinte cheie</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Cuvintele cheie ale PDF-ului</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Autorul PDF-ului</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Parolă proprietar</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Necesară pentru a schimba permisiunile; fără spații</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Parolă utilizator</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Necesară pentru a deschide PDF-ul; fără spații</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Fișiere și dosar de ieșire</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspect</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Aspectul paginilor</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descriere</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Descrierea PDF-ului</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Securitate</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Parole și permisiuni</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Despre</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Despre acest program</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progres</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Imagini începute până acum</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Listă fișiere</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Elimină</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Elimină tot</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Dosar de ieșire</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Opțiuni pentru aspectul paginilor PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Dimensiune pagină</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Convertește în PDF alb-negru</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Opțiuni pentru descrierea PDF-ului:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Opțiuni de securitate: parolele și permisiunile
PDF-ului:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Permite imprimarea</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Permite asamblarea documentului</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Permite copierea conținutului</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Permite comentarii</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Fișier imagine</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Dimensiune</translation>
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
        <translation>Fără</translation>
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
        <translation>Fără pierderi</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Codare RLE</translation>
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
        <translation>Trageți rândurile sau apăsați %1 și %2 pentru a schimba ordinea paginilor.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Deschide imaginea</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Deschide PDF-ul</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Arată în dosar</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Mută în sus</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Mută în jos</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Mută la început</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Mută la sfârșit</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Sortează după nume, 2 înainte de 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Sortează în ordinea adăugării</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selectează tot</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Adaugă imagini…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ieșire</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Opțiuni</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulare</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Resetează</translation>
    </message>
</context>
</TS>

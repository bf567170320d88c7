<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en">
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
        <translation>Programmet kan ikke starte: %1. Det skal bruge sin egen mappe i XDG_DATA_HOME eller ~/.local/share, hvor det kan skrive, oprette henvisninger og køre programmer.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Programmet kan ikke starte: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Der er ingen skærm at vise vinduet på.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Der er ingen indstilling %1; se --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Der er ingen fil %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Laver billeder om til PDF-dokumenter.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Billeder, der skal stå på listen, når vinduet åbnes.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Vis denne hjælp, og afslut.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Vis versionen, og afslut.</translation>
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
        <translation>tommer</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro Billede til PDF-konvertering</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Ingen filer</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Vælg de filer, der skal konverteres.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Alle understøttede formater(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP-fil(*.bmp);;GIF-fil(*.gif);;JPEG-fil(*.jpg;*.jpeg);;PBM-fil(*.pbm);;PCX-fil(*.pcx);;PNG-fil(*.png);;PPM-fil(*.ppm);;TIF-fil(*.tif;*.tiff);;ALLE filer(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Vælg filer, der skal konverteres</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Vælg en mappe, de konverterede filer skal gemmes i.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Filliste</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Billederne, der skal konverteres; slip filer her for at tilføje dem</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Forhåndsvisning</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Billedet i den aktuelle række</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åbn</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Føj billeder til listen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Fjern de markerede billeder fra listen</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Fjern alle</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Tøm listen</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Målmappe</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Mappen, der får PDF-filerne</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Vælg målmappe</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Flet til én PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Lav én PDF af alle billeder, opkaldt efter det første</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Konverter</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Konverter billederne til PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Roter</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Grader med uret; skriv en anden vinkel, og tryk på Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Sidestørrelse</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Tilpas hvert billede til denne side</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Komprimering</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Hvordan billederne gemmes i PDF-filen</translation>
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
        <translation>Emne</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>PDF-filens emne</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Nøgleord</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>PDF-filens nøgleord</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Forfatter</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>PDF-filens forfatter</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Ejeradgangskode</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Kræves for at ændre tilladelserne; ingen mellemrum</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Brugeradgangskode</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Kræves for at åbne PDF-filen; ingen mellemrum</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Filer og målmappe</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Udseende</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Sidernes udseende</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beskrivelse</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>PDF-filens beskrivelse</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sikkerhed</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Adgangskoder og tilladelser</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Om dette program</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Billeder påbegyndt indtil nu</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Filliste</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Fjern alle</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Målmappe</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Indstillinger for PDF-sidernes udseende:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Sidestørrelse</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Konverter til sort-hvid PDF</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Indstillinger for PDF-filens beskrivelse:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Sikkerhedsindstillinger: adgangskoder og tilladelser
til PDF-filen:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Tillad udskrivning</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Tillad dokumentsamling</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Tillad kopiering af indhold</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Tillad kommentarer</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Billedfil</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Filstørrelse</translation>
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
        <translation>Tabsfri</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Run-length-kodning</translation>
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
        <translation>Træk rækker, eller tryk på %1 og %2 for at ændre sidernes rækkefølge.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Åbn billede</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Åbn PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Vis i mappe</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Flyt op</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Flyt ned</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Flyt til toppen</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Flyt til bunden</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Sortér efter navn, 2 før 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Sortér i tilføjet rækkefølge</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markér alt</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Tilføj billeder …</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afslut</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Nulstil</translation>
    </message>
</context>
</TS>

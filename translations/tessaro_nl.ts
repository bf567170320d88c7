<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Het programma kan niet starten: %1. Het heeft een eigen map nodig, in XDG_DATA_HOME of ~/.local/share, waarin het kan schrijven, koppelingen kan maken en programma’s kan uitvoeren.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Het programma kan niet starten: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Er is geen beeldscherm om het venster op te tonen.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Er is geen optie %1; zie --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Er is geen bestand %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Zet afbeeldingen om naar pdf-documenten.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Afbeeldingen die bij het openen van het venster in de lijst staan.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Deze hulp tonen en stoppen.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>De versie tonen en stoppen.</translation>
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
        <translation>Tessaro Afbeeldingen naar pdf omzetten</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Geen bestanden</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Kies de bestanden die u wilt converteren.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Alle ondersteunde bestandstypen(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP-bestand(*.bmp);;GIF-bestand(*.gif);;JPEG-bestand(*.jpg;*.jpeg);;PBM-bestand(*.pbm);;PCX-bestand(*.pcx);;PNG-bestand(*.png);;PPM-bestand(*.ppm);;TIF-bestand(*.tif;*.tiff);;ALLE bestanden(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Kies bestanden om te converteren</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Kies een map om de geconverteerde bestanden in op te slaan.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Bestandslijst</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>De om te zetten afbeeldingen; sleep bestanden hierheen om ze toe te voegen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>De afbeelding van de huidige rij</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Afbeeldingen aan de lijst toevoegen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Geselecteerde afbeeldingen uit de lijst halen</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alles wissen</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>De lijst leegmaken</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Uitvoermap</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>De map waarin de pdf’s komen</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Uitvoermap kiezen</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Samenvoegen tot één pdf</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Eén pdf van alle afbeeldingen maken, genoemd naar de eerste</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Converteren</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>De afbeeldingen omzetten naar pdf</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Draaien</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Graden met de klok mee; typ een andere hoek en druk op Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Paginaformaat</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Elke afbeelding op deze pagina passend maken</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compressie</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Hoe de afbeeldingen in de pdf worden opgeslagen</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Titel van de pdf</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Onderwerp</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Onderwerp van de pdf</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Trefwoorden</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Trefwoorden van de pdf</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Auteur van de pdf</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Wachtwoord eigenaar</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Nodig om de machtigingen te wijzigen; geen spaties</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Wachtwoord gebruiker</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Nodig om de pdf te openen; geen spaties</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Bestanden en uitvoermap</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Uiterlijk</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Uiterlijk van de pagina’s</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschrijving</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Beschrijving van de pdf</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Beveiliging</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Wachtwoorden en machtigingen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Over dit programma</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Tot nu toe begonnen afbeeldingen</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Bestandslijst</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Alles wissen</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Uitvoermap</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Opties voor het uiterlijk van de pdf-pagina’s:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Paginaformaat</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Omzetten naar zwart-wit-pdf</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Opties voor de beschrijving van de pdf:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Beveiligingsopties: wachtwoorden en machtigingen
van de pdf:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Afdrukken toestaan</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Documentsamenstelling toestaan</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Kopiëren van inhoud toestaan</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Opmerkingen toestaan</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Afbeelding</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Grootte</translation>
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
        <translation>Geen</translation>
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
        <translation>Verliesloos</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Run-length-codering</translation>
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
        <translation>Sleep rijen of druk op %1 en %2 om de volgorde van de pagina’s te wijzigen.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Afbeelding openen</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Pdf openen</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>In map tonen</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Omhoog verplaatsen</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Omlaag verplaatsen</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Naar begin verplaatsen</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Naar einde verplaatsen</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Op naam sorteren, 2 vóór 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Op volgorde van toevoegen sorteren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Afbeeldingen toevoegen…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Herstellen</translation>
    </message>
</context>
</TS>

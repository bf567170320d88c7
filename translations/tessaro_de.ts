<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <translation>Das Programm kann nicht starten: %1. Es braucht einen eigenen Ordner in XDG_DATA_HOME oder ~/.local/share, in dem es schreiben, Verknüpfungen anlegen und Programme ausführen kann.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Das Programm kann nicht starten: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Es gibt keine Anzeige für das Fenster.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Es gibt keine Option %1; siehe --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Es gibt keine Datei %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Wandelt Bilder in PDF-Dokumente um.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Bilder, die beim Öffnen des Fensters in der Liste stehen.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Diese Hilfe anzeigen und beenden.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Die Version anzeigen und beenden.</translation>
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
        <translation>Tessaro Bild-zu-PDF-Konverter</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Keine Dateien</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Bitte wählen Sie die umzuwandelnden Dateien.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Alle unterstützten Formate(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP-Datei(*.bmp);;GIF-Datei(*.gif);;JPEG-Datei(*.jpg;*.jpeg);;PBM-Datei(*.pbm);;PCX-Datei(*.pcx);;PNG-Datei(*.png);;PPM-Datei(*.ppm);;TIF-Datei(*.tif;*.tiff);;ALLE Dateien(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Umzuwandelnde Dateien auswählen</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Ordner für die umgewandelten Dateien auswählen.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Dateiliste</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Die umzuwandelnden Bilder; weitere Dateien lassen sich hier ablegen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Das Bild der aktuellen Zeile</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Bilder zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Ausgewählte Bilder aus der Liste nehmen</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Die Liste leeren</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Der Ordner für die PDF-Dateien</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Zielordner auswählen</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Zu einer PDF-Datei zusammenfügen</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Alle Bilder zu einer PDF-Datei zusammenfügen, benannt nach dem ersten</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Die Bilder in PDF umwandeln</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Grad im Uhrzeigersinn; einen anderen Winkel eintippen und die Eingabetaste drücken</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Seitengröße</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Jedes Bild auf diese Seite einpassen</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Komprimierung</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Wie die Bilder in der PDF-Datei gespeichert werden</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Titel der PDF-Datei</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Thema der PDF-Datei</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Stichwörter der PDF-Datei</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Verfasser</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Verfasser der PDF-Datei</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Besitzerkennwort</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Nötig, um die Berechtigungen zu ändern; keine Leerzeichen</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Benutzerkennwort</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Nötig, um die PDF-Datei zu öffnen; keine Leerzeichen</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Dateien und Zielordner</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Darstellung der Seiten</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Beschreibung der PDF-Datei</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Kennwörter und Berechtigungen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Über dieses Programm</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Bisher begonnene Bilder</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Dateiliste</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Darstellung der Seiten in der PDF-Datei:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Seitengröße</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>In Schwarzweiß-PDF umwandeln</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Beschreibung der PDF-Datei:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Kennwörter und Berechtigungen
der PDF-Datei:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Drucken zulassen</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Zusammenstellen zulassen</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Kopieren von Inhalten zulassen</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Kommentieren zulassen</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Bilddatei</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Dateigröße</translation>
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
        <translation>Keine</translation>
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
        <translation>Verlustfrei</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Lauflängenkodierung</translation>
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
        <translation>Zeilen ziehen oder %1 und %2 drücken, um die Reihenfolge der Seiten zu ändern.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>PDF öffnen</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben verschieben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten verschieben</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>An den Anfang verschieben</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Ans Ende verschieben</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Nach Name sortieren, 2 vor 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>In Reihenfolge des Hinzufügens sortieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Bilder hinzufügen …</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
</TS>

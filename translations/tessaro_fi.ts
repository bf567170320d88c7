<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Tietoja</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Ohjelmaa ei voi käynnistää: %1. Se tarvitsee oman kansion hakemistossa XDG_DATA_HOME tai ~/.local/share, johon se voi kirjoittaa, luoda linkkejä ja jossa se voi suorittaa ohjelmia.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Ohjelmaa ei voi käynnistää: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Ikkunalle ei ole näyttöä.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Valitsinta %1 ei ole; katso --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Tiedostoa %1 ei ole.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Muuntaa kuvia PDF-asiakirjoiksi.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Kuvat, jotka ovat luettelossa ikkunan avautuessa.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Näytä tämä ohje ja lopeta.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Näytä versio ja lopeta.</translation>
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
        <translation>tuumaa</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro Kuvat PDF-tiedostoiksi</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Ei tiedostoja</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Valitse muunnettavat tiedostot.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Kaikki tuetut muodot(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP-tiedosto(*.bmp);;GIF-tiedosto(*.gif);;JPEG-tiedosto(*.jpg;*.jpeg);;PBM-tiedosto(*.pbm);;PCX-tiedosto(*.pcx);;PNG-tiedosto(*.png);;PPM-tiedosto(*.ppm);;TIF-tiedosto(*.tif;*.tiff);;KAIKKI tiedostot(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Valitse muunnettavat tiedostot</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Valitse kansio, johon muunnetut tiedostot tallennetaan.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Tiedostot</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Muunnettavat kuvat; lisää tiedostoja pudottamalla ne tähän</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Esikatselu</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Nykyisen rivin kuva</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Avaa</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Lisää kuvia luetteloon</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Poista valitut kuvat luettelosta</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Poista kaikki</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Tyhjennä luettelo</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Kohdekansio</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Kansio, johon PDF-tiedostot tallennetaan</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Valitse kohdekansio</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Yhdistä yhdeksi PDF:ksi</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Tee kaikista kuvista yksi PDF, joka nimetään ensimmäisen mukaan</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Muunna</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Muunna kuvat PDF:ksi</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Kierto</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Astetta myötäpäivään; kirjoita muu kulma ja paina Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Sivukoko</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Sovita jokainen kuva tälle sivulle</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Pakkaus</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Miten kuvat tallennetaan PDF-tiedostoon</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Otsikko</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>PDF-tiedoston otsikko</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Aihe</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>PDF-tiedoston aihe</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Avainsanat</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>PDF-tiedoston avainsanat</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Tekijä</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>PDF-tiedoston tekijä</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Omistajan salasana</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Tarvitaan käyttöoikeuksien muuttamiseen; ei välilyöntejä</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Käyttäjän salasana</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Tarvitaan PDF-tiedoston avaamiseen; ei välilyöntejä</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Tiedostot ja kohdekansio</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Ulkoasu</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Sivujen ulkoasu</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Kuvaus</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>PDF-tiedoston kuvaus</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Suojaus</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Salasanat ja käyttöoikeudet</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Tietoja</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Tietoja ohjelmasta</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Edistyminen</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Tähän mennessä aloitetut kuvat</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Tiedostot</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Poista kaikki</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Kohdekansio</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>PDF-sivujen ulkoasun asetukset:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Sivukoko</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Muunna mustavalkoiseksi PDF:ksi</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>PDF-tiedoston kuvauksen asetukset:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Suojausasetukset: PDF-tiedoston salasanat
ja käyttöoikeudet:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Salli tulostus</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Salli asiakirjan kokoaminen</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Salli sisällön kopiointi</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Salli kommentointi</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Kuvatiedosto</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Koko</translation>
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
        <translation>Ei mitään</translation>
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
        <translation>Häviötön</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Jaksonpituuskoodaus</translation>
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
        <translation>Muuta sivujen järjestystä vetämällä rivejä tai painamalla %1 ja %2.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Avaa kuva</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Avaa PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Näytä kansiossa</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Siirrä ylös</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Siirrä alas</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Siirrä alkuun</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Siirrä loppuun</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Järjestä nimen mukaan, 2 ennen 10:tä</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Järjestä lisäysjärjestykseen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Valitse kaikki</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Lisää kuvia…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Lopeta</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Asetukset</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Palauta</translation>
    </message>
</context>
</TS>

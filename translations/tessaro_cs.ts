<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Program nelze spustit: %1. Potřebuje vlastní složku v XDG_DATA_HOME nebo ~/.local/share, do které může zapisovat, vytvářet v ní odkazy a spouštět programy.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Program nelze spustit: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Není k dispozici displej, na kterém by se okno zobrazilo.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Volba %1 neexistuje; viz --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Soubor %1 neexistuje.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Převádí obrázky do dokumentů PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Obrázky, které budou v seznamu po otevření okna.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Zobrazit tuto nápovědu a skončit.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Zobrazit verzi a skončit.</translation>
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
        <translation>Tessaro Převod obrázků do PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Žádné soubory</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Vyberte prosím soubory k převodu.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Všechny podporované formáty(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;Soubor BMP(*.bmp);;Soubor GIF(*.gif);;Soubor JPEG(*.jpg;*.jpeg);;Soubor PBM(*.pbm);;Soubor PCX(*.pcx);;Soubor PNG(*.png);;Soubor PPM(*.ppm);;Soubor TIF(*.tif;*.tiff);;VŠECHNY soubory(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Vyberte soubory k převodu</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Vyberte složku pro uložení převedených souborů.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Soubory</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Obrázky k převodu; další soubory přidáte přetažením sem</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Obrázek na aktuálním řádku</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Přidat obrázky do seznamu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Odebrat vybrané obrázky ze seznamu</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Odebrat vše</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Vyprázdnit seznam</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Cílová složka</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Složka, do které se uloží soubory PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Vybrat cílovou složku</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Sloučit do jednoho PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Vytvořit ze všech obrázků jedno PDF pojmenované podle prvního</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Převést</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Převést obrázky do PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Otočení</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Stupně po směru hodinových ručiček; jiný úhel napište a stiskněte Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Velikost stránky</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Přizpůsobit každý obrázek této stránce</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Komprese</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Jak jsou obrázky v PDF uloženy</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Název PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Předmět</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Předmět PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Klíčová slova</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Klíčová slova PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Autor PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Heslo vlastníka</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Potřebné ke změně oprávnění; bez mezer</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Heslo uživatele</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Potřebné k otevření PDF; bez mezer</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Soubory a cílová složka</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Vzhled</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Vzhled stránek</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Popis</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Popis PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Zabezpečení</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Hesla a oprávnění</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>O tomto programu</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Dosud zahájené obrázky</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Soubory</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Odebrat vše</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Cílová složka</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Možnosti vzhledu stránek PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Velikost stránky</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Převést na černobílé PDF</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Možnosti popisu PDF:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Možnosti zabezpečení: hesla a oprávnění
PDF:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Povolit tisk</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Povolit sestavení dokumentu</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Povolit kopírování obsahu</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Povolit komentáře</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Soubor obrázku</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Velikost</translation>
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
        <translation>Žádná</translation>
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
        <translation>Bezztrátová</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Kódování délkou běhu</translation>
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
        <translation>Pořadí stránek změníte přetažením řádků nebo klávesami %1 a %2.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Otevřít obrázek</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Otevřít PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Zobrazit ve složce</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Posunout nahoru</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Posunout dolů</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Přesunout na začátek</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Přesunout na konec</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Seřadit podle názvu, 2 před 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Seřadit podle pořadí přidání</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Vybrat vše</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Přidat obrázky…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Možnosti</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Obnovit</translation>
    </message>
</context>
</TS>

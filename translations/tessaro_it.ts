<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Il programma non può essere avviato: %1. Ha bisogno di una cartella propria, in XDG_DATA_HOME o ~/.local/share, in cui possa scrivere, creare collegamenti ed eseguire programmi.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Il programma non può essere avviato: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Non c’è uno schermo su cui mostrare la finestra.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Non esiste l’opzione %1; vedere --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Non esiste il file %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Converte immagini in documenti PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Immagini da mettere nell’elenco all’apertura della finestra.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Mostra questo aiuto ed esce.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Mostra la versione ed esce.</translation>
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
        <translation>Tessaro Convertitore da immagini a PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Nessun file</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Scegliere i file da convertire.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Tutti i formati supportati(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;File BMP(*.bmp);;File GIF(*.gif);;File JPEG(*.jpg;*.jpeg);;File PBM(*.pbm);;File PCX(*.pcx);;File PNG(*.png);;File PPM(*.ppm);;File TIF(*.tif;*.tiff);;TUTTI i file(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Scegli i file da convertire</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Scegli la cartella in cui salvare i file convertiti.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Elenco file</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Le immagini da convertire; trascinare qui altri file per aggiungerli</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>L’immagine della riga corrente</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Aggiungi immagini all’elenco</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Togli dall’elenco le immagini selezionate</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Rimuovi tutto</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Svuota l’elenco</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>La cartella che riceve i file PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Scegli la cartella di destinazione</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Unisci in un solo PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Crea un solo PDF con tutte le immagini, con il nome della prima</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Converti</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Converti le immagini in PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Gradi in senso orario; per un altro angolo digitarlo e premere Invio</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Dimensione pagina</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Adatta ogni immagine a questa pagina</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compressione</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Come le immagini vengono salvate nel PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Titolo del PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Oggetto</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Oggetto del PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Parole chiave</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Parole chiave del PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autore</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Autore del PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Password proprietario</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Necessaria per modificare le autorizzazioni; senza spazi</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Password utente</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Necessaria per aprire il PDF; senza spazi</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>File e cartella di destinazione</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Aspetto delle pagine</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Descrizione del PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicurezza</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Password e autorizzazioni</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Informazioni sul programma</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Immagini iniziate finora</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Elenco file</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Rimuovi tutto</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Opzioni di aspetto delle pagine del PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Dimensione pagina</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Converti in PDF in bianco e nero</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Opzioni di descrizione del PDF:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Opzioni di sicurezza: password e autorizzazioni
del PDF:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Consenti stampa</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Consenti assemblaggio documento</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Consenti copia del contenuto</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Consenti commenti</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>File immagine</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Dimensione</translation>
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
        <translation>Nessuna</translation>
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
        <translation>Senza perdita</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Codifica run-length</translation>
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
        <translation>Trascinare le righe o premere %1 e %2 per cambiare l’ordine delle pagine.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Apri immagine</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Apri PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Sposta all’inizio</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Sposta alla fine</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Ordina per nome, 2 prima di 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Ordina per ordine di aggiunta</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Aggiungi immagini…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Ripristina</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>El programa no puede iniciarse: %1. Necesita una carpeta propia, en XDG_DATA_HOME o ~/.local/share, en la que pueda escribir, crear enlaces y ejecutar programas.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>El programa no puede iniciarse: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>No hay ninguna pantalla en la que mostrar la ventana.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>No existe la opción %1; véase --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>No existe el archivo %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Convierte imágenes en documentos PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Imágenes que se añaden a la lista al abrir la ventana.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Mostrar esta ayuda y salir.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Mostrar la versión y salir.</translation>
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
        <translation>Tessaro Conversor de imágenes a PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Sin archivos</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Elija los archivos que desea convertir.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Todos los formatos admitidos(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;Archivo BMP(*.bmp);;Archivo GIF(*.gif);;Archivo JPEG(*.jpg;*.jpeg);;Archivo PBM(*.pbm);;Archivo PCX(*.pcx);;Archivo PNG(*.png);;Archivo PPM(*.ppm);;Archivo TIF(*.tif;*.tiff);;TODOS los archivos(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Elegir los archivos que se van a convertir</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Elija la carpeta donde guardar los archivos convertidos.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Las imágenes que se van a convertir; suelte aquí archivos para añadirlos</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>La imagen de la fila actual</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Añadir imágenes a la lista</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Quitar de la lista las imágenes seleccionadas</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Quitar todo</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Vaciar la lista</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>La carpeta que recibe los archivos PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Elegir la carpeta de destino</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Combinar en un solo PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Hacer un solo PDF con todas las imágenes, con el nombre de la primera</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Convertir las imágenes en PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Grados en sentido horario; para otro ángulo, escríbalo y pulse Intro</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Tamaño de página</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Ajustar cada imagen a esta página</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compresión</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Cómo se guardan las imágenes en el PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Título del PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Asunto</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Asunto del PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Palabras clave</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Palabras clave del PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Autor del PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Contraseña de propietario</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Necesaria para cambiar los permisos; sin espacios</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Contraseña de usuario</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Necesaria para abrir el PDF; sin espacios</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Archivos y carpeta de destino</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspecto</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Aspecto de las páginas</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Descripción del PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Contraseñas y permisos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Acerca de este programa</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Imágenes iniciadas hasta ahora</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Quitar todo</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Opciones de aspecto de las páginas del PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Tamaño de página</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Convertir en PDF en blanco y negro</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Opciones de descripción del PDF:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Opciones de seguridad: contraseñas y permisos
del PDF:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Permitir la impresión</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Permitir ensamblar el documento</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Permitir copiar el contenido</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Permitir comentarios</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Archivo de imagen</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Tamaño</translation>
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
        <translation>Ninguna</translation>
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
        <translation>Sin pérdidas</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Codificación RLE</translation>
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
        <translation>Arrastre filas o pulse %1 y %2 para cambiar el orden de las páginas.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Abrir imagen</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Abrir PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Mover al principio</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Mover al final</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Ordenar por nombre, 2 antes que 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Ordenar según se añadieron</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Añadir imágenes…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Restablecer</translation>
    </message>
</context>
</TS>

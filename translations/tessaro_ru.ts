<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Не удаётся запустить программу: %1. Ей нужна собственная папка в XDG_DATA_HOME или ~/.local/share, где она может записывать файлы, создавать ссылки и запускать программы.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Не удаётся запустить программу: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Нет дисплея, на котором можно показать окно.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Параметра %1 нет; см. --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Файла %1 нет.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Преобразует изображения в документы PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Изображения, которые будут в списке при открытии окна.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Показать эту справку и завершить работу.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Показать версию и завершить работу.</translation>
    </message>
</context>
<context>
    <name>HexSpinBox</name>
    <message>
        <source>pt</source>
        <translation>пт</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>см</translation>
    </message>
    <message>
        <source>in</source>
        <translation>дюйм</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro Преобразование изображений в PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Нет файлов</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Выберите файлы для преобразования.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Все поддерживаемые форматы(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;Файл BMP(*.bmp);;Файл GIF(*.gif);;Файл JPEG(*.jpg;*.jpeg);;Файл PBM(*.pbm);;Файл PCX(*.pcx);;Файл PNG(*.png);;Файл PPM(*.ppm);;Файл TIF(*.tif;*.tiff);;ВСЕ файлы(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Выберите файлы для преобразования</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Выберите папку для сохранения преобразованных файлов.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Список файлов</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Изображения для преобразования; перетащите сюда файлы, чтобы добавить их</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Изображение текущей строки</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Добавить изображения в список</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Убрать выбранные изображения из списка</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Убрать все</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Очистить список</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Папка вывода</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Папка, в которую попадут файлы PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Выбрать папку вывода</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Объединить в один PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Создать один PDF из всех изображений с именем первого</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Преобразовать</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Преобразовать изображения в PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Поворот</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Градусы по часовой стрелке; для другого угла введите его и нажмите Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Размер страницы</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Вписать каждое изображение в эту страницу</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Сжатие</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Как изображения хранятся в PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Заголовок</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Заголовок PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Тема PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Ключевые слова</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Ключевые слова PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Автор</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Автор PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Пароль владельца</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Нужен, чтобы изменить разрешения; без пробелов</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Пароль пользователя</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Нужен, чтобы открыть PDF; без пробелов</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Файлы и папка вывода</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Внешний вид страниц</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Описание PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Безопасность</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Пароли и разрешения</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Об этой программе</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход работы</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Начато изображений</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Список файлов</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Убрать все</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Папка вывода</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Параметры внешнего вида страниц PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Размер страницы</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Преобразовать в чёрно-белый PDF</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Параметры описания PDF:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Параметры безопасности: пароли и разрешения
для PDF:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Разрешить печать</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Разрешить сборку документа</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Разрешить копирование содержимого</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Разрешить комментирование</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Файл изображения</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Размер</translation>
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
        <translation>Нет</translation>
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
        <translation>Без потерь</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Кодирование длин серий</translation>
    </message>
    <message>
        <source>Zip</source>
        <translation>Zip</translation>
    </message>
    <message>
        <source>A0 (841x1189 mm)</source>
        <translation>A0 (841x1189 мм)</translation>
    </message>
    <message>
        <source>A1 (594x841 mm)</source>
        <translation>A1 (594x841 мм)</translation>
    </message>
    <message>
        <source>A2 (420x594 mm)</source>
        <translation>A2 (420x594 мм)</translation>
    </message>
    <message>
        <source>A3 (297x420 mm)</source>
        <translation>A3 (297x420 мм)</translation>
    </message>
    <message>
        <source>A4 (210x297 mm)</source>
        <translation>A4 (210x297 мм)</translation>
    </message>
    <message>
        <source>A5 (148x210 mm)</source>
        <translation>A5 (148x210 мм)</translation>
    </message>
    <message>
        <source>A6 (105x148 mm)</source>
        <translation>A6 (105x148 мм)</translation>
    </message>
    <message>
        <source>A7 (74x105 mm)</source>
        <translation>A7 (74x105 мм)</translation>
    </message>
    <message>
        <source>A8 (52x74 mm)</source>
        <translation>A8 (52x74 мм)</translation>
    </message>
    <message>
        <source>A9 (37x52 mm)</source>
        <translation>A9 (37x52 мм)</translation>
    </message>
    <message>
        <source>ArchA (229x305 mm)</source>
        <translation>ArchA (229x305 мм)</translation>
    </message>
    <message>
        <source>ArchB (305x457 mm)</source>
        <translation>ArchB (305x457 мм)</translation>
    </message>
    <message>
        <source>ArchC (457x610 mm)</source>
        <translation>ArchC (457x610 мм)</translation>
    </message>
    <message>
        <source>ArchD (610x914 mm)</source>
        <translation>ArchD (610x914 мм)</translation>
    </message>
    <message>
        <source>ArchE (914x1219 mm)</source>
        <translation>ArchE (914x1219 мм)</translation>
    </message>
    <message>
        <source>Ledger (431.8x279. 4mm)</source>
        <translation>Ledger (431.8x279.4 мм)</translation>
    </message>
    <message>
        <source>Legal (215.9x355.6 mm)</source>
        <translation>Legal (215.9x355.6 мм)</translation>
    </message>
    <message>
        <source>Letter (215.9x279.4 mm)</source>
        <translation>Letter (215.9x279.4 мм)</translation>
    </message>
    <message>
        <source>Tabloid (279.4x431.8 mm)</source>
        <translation>Tabloid (279.4x431.8 мм)</translation>
    </message>
    <message>
        <source>Drag rows or press %1 and %2 to change the order of the pages.</source>
        <translation>Перетащите строки или нажмите %1 и %2, чтобы изменить порядок страниц.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Открыть изображение</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Открыть PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Переместить вверх</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Переместить вниз</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Переместить в начало</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Переместить в конец</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Сортировать по имени, 2 перед 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Сортировать в порядке добавления</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выбрать все</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Добавить изображения…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Сбросить</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Не вдається запустити програму: %1. Їй потрібна власна тека в XDG_DATA_HOME або ~/.local/share, де вона може записувати файли, створювати посилання та запускати програми.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Не вдається запустити програму: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Немає дисплея, на якому можна показати вікно.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Параметра %1 немає; див. --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Файлу %1 немає.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Перетворює зображення на документи PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Зображення, які будуть у списку після відкриття вікна.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Показати цю довідку й завершити роботу.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Показати версію й завершити роботу.</translation>
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
        <translation>Tessaro Перетворення зображень на PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Немає файлів</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Виберіть файли для перетворення.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Усі підтримувані формати(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;Файл BMP(*.bmp);;Файл GIF(*.gif);;Файл JPEG(*.jpg;*.jpeg);;Файл PBM(*.pbm);;Файл PCX(*.pcx);;Файл PNG(*.png);;Файл PPM(*.ppm);;Файл TIF(*.tif;*.tiff);;УСІ файли(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Виберіть файли для перетворення</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Виберіть теку для збереження перетворених файлів.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Список файлів</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Зображення для перетворення; перетягніть сюди файли, щоб додати їх</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Перегляд</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Зображення поточного рядка</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Відкрити</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Додати зображення до списку</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Вилучити</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Вилучити вибрані зображення зі списку</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Вилучити все</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Спорожнити список</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Тека виводу</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Тека, до якої потраплять файли PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Вибрати теку виводу</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Об’єднати в один PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Створити один PDF з усіх зображень із назвою першого</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Перетворити</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Перетворити зображення на PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Поворот</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Градуси за годинниковою стрілкою; для іншого кута введіть його й натисніть Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Розмір сторінки</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Вписати кожне зображення в цю сторінку</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Стиснення</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Як зображення зберігаються в PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Назва</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Назва PDF</translation>
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
        <translation>Ключові слова</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Ключові слова PDF</translation>
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
        <translation>Пароль власника</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Потрібен, щоб змінити дозволи; без пробілів</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Пароль користувача</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Потрібен, щоб відкрити PDF; без пробілів</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Файли й тека виводу</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Вигляд</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Вигляд сторінок</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Опис</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Опис PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Захист</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Паролі та дозволи</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Про цю програму</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Поступ</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Розпочато зображень</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Список файлів</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Вилучити</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Вилучити все</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Тека виводу</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Параметри вигляду сторінок PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Розмір сторінки</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Перетворити на чорно-білий PDF</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Параметри опису PDF:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Параметри захисту: паролі та дозволи
для PDF:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Дозволити друк</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Дозволити складання документа</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Дозволити копіювання вмісту</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Дозволити коментування</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Файл зображення</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Розмір</translation>
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
        <translation>Немає</translation>
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
        <translation>Без втрат</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Кодування довжин серій</translation>
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
        <translation>Перетягніть рядки або натисніть %1 і %2, щоб змінити порядок сторінок.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Відкрити зображення</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Відкрити PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Показати в теці</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Перемістити вгору</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Перемістити вниз</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Перемістити на початок</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Перемістити в кінець</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Упорядкувати за назвою, 2 перед 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Упорядкувати за порядком додавання</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Вибрати все</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Додати зображення…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Параметри</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Скинути</translation>
    </message>
</context>
</TS>

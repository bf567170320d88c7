<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>تعذر بدء البرنامج: %1. يحتاج إلى مجلد خاص به في XDG_DATA_HOME أو ‎~/.local/share يستطيع الكتابة فيه وإنشاء الروابط وتشغيل البرامج.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>تعذر بدء البرنامج: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>لا توجد شاشة لعرض النافذة عليها.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>لا يوجد خيار %1؛ انظر --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>لا يوجد ملف %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>يحوّل الصور إلى مستندات PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>الصور التي تظهر في القائمة عند فتح النافذة.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>عرض هذه المساعدة والخروج.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>عرض الإصدار والخروج.</translation>
    </message>
</context>
<context>
    <name>HexSpinBox</name>
    <message>
        <source>pt</source>
        <translation>نقطة</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>سم</translation>
    </message>
    <message>
        <source>in</source>
        <translation>بوصة</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro محول الصور إلى PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>لا توجد ملفات</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>يرجى اختيار الملفات المراد تحويلها.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>كل التنسيقات المدعومة(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;ملف BMP(*.bmp);;ملف GIF(*.gif);;ملف JPEG(*.jpg;*.jpeg);;ملف PBM(*.pbm);;ملف PCX(*.pcx);;ملف PNG(*.png);;ملف PPM(*.ppm);;ملف TIF(*.tif;*.tiff);;كل الملفات(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>اختيار الملفات المراد تحويلها</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>اختيار مجلد لحفظ الملفات المحولة.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>قائمة الملفات</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>الصور المراد تحويلها؛ أفلت الملفات هنا لإضافتها</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>صورة الصف الحالي</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>إضافة صور إلى القائمة</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>إزالة الصور المحددة من القائمة</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>إزالة الكل</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>إفراغ القائمة</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>مجلد الإخراج</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>المجلد الذي تُحفظ فيه ملفات PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>اختيار مجلد الإخراج</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>الدمج في ملف PDF واحد</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>إنشاء ملف PDF واحد من كل الصور باسم الصورة الأولى</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>تحويل</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>تحويل الصور إلى PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>التدوير</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>الدرجات باتجاه عقارب الساعة؛ لزاوية أخرى اكتبها واضغط على Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>حجم الصفحة</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>ملاءمة كل صورة لهذه الصفحة</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>الضغط</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>طريقة حفظ الصور في ملف PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>عنوان ملف PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>الموضوع</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>موضوع ملف PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>الكلمات المفتاحية</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>الكلمات المفتاحية لملف PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>المؤلف</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>مؤلف ملف PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>كلمة مرور المالك</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>مطلوبة لتغيير الأذونات؛ من دون مسافات</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>كلمة مرور المستخدم</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>مطلوبة لفتح ملف PDF؛ من دون مسافات</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>الملفات ومجلد الإخراج</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>مظهر الصفحات</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>وصف ملف PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>الأمان</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>كلمات المرور والأذونات</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>حول هذا البرنامج</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>الصور التي بدأ تحويلها حتى الآن</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>قائمة الملفات</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>إزالة الكل</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>مجلد الإخراج</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>خيارات مظهر صفحات ملف PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>حجم الصفحة</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>التحويل إلى PDF بالأبيض والأسود</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>خيارات وصف ملف PDF:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>خيارات الأمان: كلمات مرور ملف PDF
وأذوناته:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>السماح بالطباعة</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>السماح بتجميع المستند</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>السماح بنسخ المحتوى</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>السماح بالتعليق</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>ملف الصورة</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>حجم الملف</translation>
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
        <translation>بدون</translation>
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
        <translation>بلا فقدان</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>ترميز طول التشغيل</translation>
    </message>
    <message>
        <source>Zip</source>
        <translation>Zip</translation>
    </message>
    <message>
        <source>A0 (841x1189 mm)</source>
        <translation>A0 (841x1189 مم)</translation>
    </message>
    <message>
        <source>A1 (594x841 mm)</source>
        <translation>A1 (594x841 مم)</translation>
    </message>
    <message>
        <source>A2 (420x594 mm)</source>
        <translation>A2 (420x594 مم)</translation>
    </message>
    <message>
        <source>A3 (297x420 mm)</source>
        <translation>A3 (297x420 مم)</translation>
    </message>
    <message>
        <source>A4 (210x297 mm)</source>
        <translation>A4 (210x297 مم)</translation>
    </message>
    <message>
        <source>A5 (148x210 mm)</source>
        <translation>A5 (148x210 مم)</translation>
    </message>
    <message>
        <source>A6 (105x148 mm)</source>
        <translation>A6 (105x148 مم)</translation>
    </message>
    <message>
        <source>A7 (74x105 mm)</source>
        <translation>A7 (74x105 مم)</translation>
    </message>
    <message>
        <source>A8 (52x74 mm)</source>
        <translation>A8 (52x74 مم)</translation>
    </message>
    <message>
        <source>A9 (37x52 mm)</source>
        <translation>A9 (37x52 مم)</translation>
    </message>
    <message>
        <source>ArchA (229x305 mm)</source>
        <translation>ArchA (229x305 مم)</translation>
    </message>
    <message>
        <source>ArchB (305x457 mm)</source>
        <translation>ArchB (305x457 مم)</translation>
    </message>
    <message>
        <source>ArchC (457x610 mm)</source>
        <translation>ArchC (457x610 مم)</translation>
    </message>
    <message>
        <source>ArchD (610x914 mm)</source>
        <translation>ArchD (610x914 مم)</translation>
    </message>
    <message>
        <source>ArchE (914x1219 mm)</source>
        <translation>ArchE (914x1219 مم)</translation>
    </message>
    <message>
        <source>Ledger (431.8x279. 4mm)</source>
        <translation>Ledger (431.8x279.4 مم)</translation>
    </message>
    <message>
        <source>Legal (215.9x355.6 mm)</source>
        <translation>Legal (215.9x355.6 مم)</translation>
    </message>
    <message>
        <source>Letter (215.9x279.4 mm)</source>
        <translation>Letter (215.9x279.4 مم)</translation>
    </message>
    <message>
        <source>Tabloid (279.4x431.8 mm)</source>
        <translation>Tabloid (279.4x431.8 مم)</translation>
    </message>
    <message>
        <source>Drag rows or press %1 and %2 to change the order of the pages.</source>
        <translation>اسحب الصفوف أو اضغط %1 و%2 لتغيير ترتيب الصفحات.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>فتح الصورة</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>فتح ملف PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>إظهار في المجلد</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>نقل لأسفل</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>نقل إلى البداية</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>نقل إلى النهاية</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>فرز حسب الاسم، 2 قبل 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>فرز حسب ترتيب الإضافة</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>إضافة صور…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>خيارات</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>إعادة تعيين</translation>
    </message>
</context>
</TS>

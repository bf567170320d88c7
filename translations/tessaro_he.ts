<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>אודות</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>לא ניתן להפעיל את התוכנית: %1. היא צריכה תיקייה משלה, ב־XDG_DATA_HOME או ב־~/.local/share, שבה תוכל לכתוב, ליצור קישורים ולהריץ תוכניות.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>לא ניתן להפעיל את התוכנית: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>אין צג שאפשר להציג בו את החלון.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>אין אפשרות בשם %1; ראו --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>אין קובץ בשם %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>הופכת תמונות למסמכי PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>תמונות שיופיעו ברשימה עם פתיחת החלון.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>הצגת עזרה זו ויציאה.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>הצגת הגרסה ויציאה.</translation>
    </message>
</context>
<context>
    <name>HexSpinBox</name>
    <message>
        <source>pt</source>
        <translation>נק׳</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>ס״מ</translation>
    </message>
    <message>
        <source>in</source>
        <translation>אינץ׳</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro המרת תמונות ל־PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>אין קבצים</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>נא לבחור קבצים להמרה.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>כל התבניות הנתמכות(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;קובץ BMP(*.bmp);;קובץ GIF(*.gif);;קובץ JPEG(*.jpg;*.jpeg);;קובץ PBM(*.pbm);;קובץ PCX(*.pcx);;קובץ PNG(*.png);;קובץ PPM(*.ppm);;קובץ TIF(*.tif;*.tiff);;כל הקבצים(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>בחירת קבצים להמרה</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>בחירת תיקייה לשמירת הקבצים המומרים.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>רשימת קבצים</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>התמונות להמרה; ניתן להוסיף קבצים בגרירה לכאן</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>תצוגה מקדימה</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>התמונה בשורה הנוכחית</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>פתיחה</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>הוספת תמונות לרשימה</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסרה</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>הסרת התמונות הנבחרות מהרשימה</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>הסרת הכול</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>ריקון הרשימה</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>תיקיית פלט</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>התיקייה שבה יישמרו קובצי ה־PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>בחירת תיקיית הפלט</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>מיזוג ל־PDF אחד</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>יצירת PDF אחד מכל התמונות, בשם התמונה הראשונה</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>המרה</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>המרת התמונות ל־PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>סיבוב</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>מעלות עם כיוון השעון; לזווית אחרת יש להקליד אותה וללחוץ על Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>גודל עמוד</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>התאמת כל תמונה לעמוד זה</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>דחיסה</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>אופן שמירת התמונות ב־PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>כותרת</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>כותרת ה־PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>נושא</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>נושא ה־PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>מילות מפתח</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>מילות המפתח של ה־PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>מחבר</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>מחבר ה־PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>סיסמת בעלים</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>נדרשת לשינוי ההרשאות; ללא רווחים</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>סיסמת משתמש</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>נדרשת לפתיחת ה־PDF; ללא רווחים</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>קבצים ותיקיית פלט</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>מראה</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>מראה העמודים</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>תיאור</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>תיאור ה־PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>אבטחה</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>סיסמאות והרשאות</translation>
    </message>
    <message>
        <source>About</source>
        <translation>אודות</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>אודות התוכנית</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>התקדמות</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>תמונות שטיפולן החל עד כה</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>רשימת קבצים</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>הסרה</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>הסרת הכול</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>תיקיית פלט</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>אפשרויות המראה של עמודי ה־PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>גודל עמוד</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>המרה ל־PDF בשחור־לבן</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>אפשרויות התיאור של ה־PDF:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>אפשרויות אבטחה: סיסמאות והרשאות
של ה־PDF:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>הדפסה מותרת</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>הרכבת המסמך מותרת</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>העתקת תוכן מותרת</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>הוספת הערות מותרת</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>קובץ תמונה</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>גודל הקובץ</translation>
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
        <translation>ללא</translation>
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
        <translation>ללא אובדן</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>קידוד אורך רצף</translation>
    </message>
    <message>
        <source>Zip</source>
        <translation>Zip</translation>
    </message>
    <message>
        <source>A0 (841x1189 mm)</source>
        <translation>A0 (841x1189 מ״מ)</translation>
    </message>
    <message>
        <source>A1 (594x841 mm)</source>
        <translation>A1 (594x841 מ״מ)</translation>
    </message>
    <message>
        <source>A2 (420x594 mm)</source>
        <translation>A2 (420x594 מ״מ)</translation>
    </message>
    <message>
        <source>A3 (297x420 mm)</source>
        <translation>A3 (297x420 מ״מ)</translation>
    </message>
    <message>
        <source>A4 (210x297 mm)</source>
        <translation>A4 (210x297 מ״מ)</translation>
    </message>
    <message>
        <source>A5 (148x210 mm)</source>
        <translation>A5 (148x210 מ״מ)</translation>
    </message>
    <message>
        <source>A6 (105x148 mm)</source>
        <translation>A6 (105x148 מ״מ)</translation>
    </message>
    <message>
        <source>A7 (74x105 mm)</source>
        <translation>A7 (74x105 מ״מ)</translation>
    </message>
    <message>
        <source>A8 (52x74 mm)</source>
        <translation>A8 (52x74 מ״מ)</translation>
    </message>
    <message>
        <source>A9 (37x52 mm)</source>
        <translation>A9 (37x52 מ״מ)</translation>
    </message>
    <message>
        <source>ArchA (229x305 mm)</source>
        <translation>ArchA (229x305 מ״מ)</translation>
    </message>
    <message>
        <source>ArchB (305x457 mm)</source>
        <translation>ArchB (305x457 מ״מ)</translation>
    </message>
    <message>
        <source>ArchC (457x610 mm)</source>
        <translation>ArchC (457x610 מ״מ)</translation>
    </message>
    <message>
        <source>ArchD (610x914 mm)</source>
        <translation>ArchD (610x914 מ״מ)</translation>
    </message>
    <message>
        <source>ArchE (914x1219 mm)</source>
        <translation>ArchE (914x1219 מ״מ)</translation>
    </message>
    <message>
        <source>Ledger (431.8x279. 4mm)</source>
        <translation>Ledger (431.8x279.4 מ״מ)</translation>
    </message>
    <message>
        <source>Legal (215.9x355.6 mm)</source>
        <translation>Legal (215.9x355.6 מ״מ)</translation>
    </message>
    <message>
        <source>Letter (215.9x279.4 mm)</source>
        <translation>Letter (215.9x279.4 מ״מ)</translation>
    </message>
    <message>
        <source>Tabloid (279.4x431.8 mm)</source>
        <translation>Tabloid (279.4x431.8 מ״מ)</translation>
    </message>
    <message>
        <source>Drag rows or press %1 and %2 to change the order of the pages.</source>
        <translation>ניתן לגרור שורות או להקיש %1 ו־%2 כדי לשנות את סדר העמודים.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>פתיחת התמונה</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>פתיחת ה־PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>הצגה בתיקייה</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>העברה למעלה</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>העברה למטה</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>העברה להתחלה</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>העברה לסוף</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>מיון לפי שם, 2 לפני 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>מיון לפי סדר ההוספה</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>בחירת הכול</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>הוספת תמונות…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>יציאה</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>אפשרויות</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>איפוס הכול</translation>
    </message>
</context>
</TS>

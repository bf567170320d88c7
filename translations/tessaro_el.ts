<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Πληροφορίες</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Το πρόγραμμα δεν μπορεί να ξεκινήσει: %1. Χρειάζεται δικό του φάκελο, στο XDG_DATA_HOME ή στο ~/.local/share, όπου να μπορεί να γράφει, να δημιουργεί συνδέσμους και να εκτελεί προγράμματα.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Το πρόγραμμα δεν μπορεί να ξεκινήσει: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Δεν υπάρχει οθόνη για να εμφανιστεί το παράθυρο.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Δεν υπάρχει επιλογή %1· δείτε το --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Δεν υπάρχει αρχείο %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Μετατρέπει εικόνες σε έγγραφα PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Εικόνες που μπαίνουν στη λίστα όταν ανοίγει το παράθυρο.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Εμφάνιση αυτής της βοήθειας και τερματισμός.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Εμφάνιση της έκδοσης και τερματισμός.</translation>
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
        <translation>Tessaro Μετατροπέας εικόνων σε PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Δεν υπάρχουν αρχεία</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Επιλέξτε αρχεία για μετατροπή.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Όλες οι υποστηριζόμενες μορφές(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;Αρχείο BMP(*.bmp);;Αρχείο GIF(*.gif);;Αρχείο JPEG(*.jpg;*.jpeg);;Αρχείο PBM(*.pbm);;Αρχείο PCX(*.pcx);;Αρχείο PNG(*.png);;Αρχείο PPM(*.ppm);;Αρχείο TIF(*.tif;*.tiff);;ΟΛΑ τα αρχεία(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Επιλογή αρχείων για μετατροπή</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Επιλέξτε φάκελο για την αποθήκευση των αρχείων.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Λίστα αρχείων</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Οι εικόνες προς μετατροπή· αποθέστε αρχεία εδώ για να τα προσθέσετε</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Προεπισκόπηση</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Η εικόνα της τρέχουσας γραμμής</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Άνοιγμα</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Προσθήκη εικόνων στη λίστα</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Αφαίρεση</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Αφαίρεση των επιλεγμένων εικόνων από τη λίστα</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Αφαίρεση όλων</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Άδειασμα της λίστας</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Φάκελος εξόδου</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Ο φάκελος όπου αποθηκεύονται τα αρχεία PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Επιλογή φακέλου εξόδου</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Συγχώνευση σε ένα PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Δημιουργία ενός PDF από όλες τις εικόνες, με το όνομα της πρώτης</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Μετατροπή</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Μετατροπή των εικόνων σε PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Περιστροφή</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Μοίρες δεξιόστροφα· για άλλη γωνία, πληκτρολογήστε την και πατήστε Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Μέγεθος σελίδας</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Προσαρμογή κάθε εικόνας σε αυτή τη σελίδα</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Συμπίεση</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Πώς αποθηκεύονται οι εικόνες στο PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Τίτλος</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Τίτλος του PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Θέμα</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Θέμα του PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Λέξεις-κλειδιά</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Λέξεις-κλειδιά του PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Συγγραφέας</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Συγγραφέας του PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Κωδικός κατόχου</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Απαιτείται για αλλαγή των δικαιωμάτων· χωρίς κενά</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Κωδικός χρήστη</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Απαιτείται για άνοιγμα του PDF· χωρίς κενά</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Αρχεία και φάκελος εξόδου</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Εμφάνιση</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Εμφάνιση των σελίδων</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Περιγραφή</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Περιγραφή του PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Ασφάλεια</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Κωδικοί και δικαιώματα</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Πληροφορίες</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Πληροφορίες για το πρόγραμμα</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Πρόοδος</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Εικόνες που έχουν ξεκινήσει</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Λίστα αρχείων</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Αφαίρεση</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Αφαίρεση όλων</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Φάκελος εξόδου</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Επιλογές εμφάνισης των σελίδων του PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Μέγεθος σελίδας</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Μετατροπή σε ασπρόμαυρο PDF</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Επιλογές περιγραφής του PDF:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Επιλογές ασφαλείας: κωδικοί και δικαιώματα
του PDF:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Να επιτρέπεται η εκτύπωση</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Να επιτρέπεται η συναρμολόγηση</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Να επιτρέπεται η αντιγραφή</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Να επιτρέπεται ο σχολιασμός</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Αρχείο εικόνας</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Μέγεθος</translation>
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
        <translation>Καμία</translation>
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
        <translation>Χωρίς απώλειες</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Κωδικοποίηση RLE</translation>
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
        <translation>Σύρετε γραμμές ή πατήστε %1 και %2 για να αλλάξετε τη σειρά των σελίδων.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Άνοιγμα εικόνας</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Άνοιγμα PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Εμφάνιση στον φάκελο</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Μετακίνηση πάνω</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Μετακίνηση κάτω</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Μετακίνηση στην αρχή</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Μετακίνηση στο τέλος</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Ταξινόμηση κατά όνομα, 2 πριν από 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Ταξινόμηση με τη σειρά προσθήκης</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Επιλογή όλων</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Προσθήκη εικόνων…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Έξοδος</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Επιλογές</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Άκυρο</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Επαναφορά</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>परिचय</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>प्रोग्राम शुरू नहीं हो सकता: %1। इसे XDG_DATA_HOME या ~/.local/share में अपना फ़ोल्डर चाहिए, जिसमें यह लिख सके, लिंक बना सके और प्रोग्राम चला सके।</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>प्रोग्राम शुरू नहीं हो सकता: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>विंडो दिखाने के लिए कोई डिस्प्ले नहीं है।</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>%1 नाम का कोई विकल्प नहीं है; --help देखें।</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>%1 नाम की कोई फ़ाइल नहीं है।</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>छवियों को PDF दस्तावेज़ों में बदलता है।</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>विंडो खुलने पर सूची में दिखने वाली छवियाँ।</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>यह सहायता दिखाएँ और बंद करें।</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>संस्करण दिखाएँ और बंद करें।</translation>
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
        <translation>सेमी</translation>
    </message>
    <message>
        <source>in</source>
        <translation>इंच</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro छवि से PDF परिवर्तक</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>कोई फ़ाइल नहीं</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>कृपया बदलने के लिए फ़ाइलें चुनें।</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>सभी समर्थित प्रारूप(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP फ़ाइल(*.bmp);;GIF फ़ाइल(*.gif);;JPEG फ़ाइल(*.jpg;*.jpeg);;PBM फ़ाइल(*.pbm);;PCX फ़ाइल(*.pcx);;PNG फ़ाइल(*.png);;PPM फ़ाइल(*.ppm);;TIF फ़ाइल(*.tif;*.tiff);;सभी फ़ाइलें(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>बदलने के लिए फ़ाइलें चुनें</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>बदली गई फ़ाइलें सहेजने के लिए फ़ोल्डर चुनें।</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>फ़ाइल सूची</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>बदली जाने वाली छवियाँ; जोड़ने के लिए फ़ाइलें यहाँ छोड़ें</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>पूर्वावलोकन</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>वर्तमान पंक्ति की छवि</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>सूची में छवियाँ जोड़ें</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>चुनी हुई छवियाँ सूची से हटाएँ</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>सभी हटाएँ</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>सूची खाली करें</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>आउटपुट फ़ोल्डर</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>वह फ़ोल्डर जिसमें PDF फ़ाइलें रखी जाएँगी</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>आउटपुट फ़ोल्डर चुनें</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>एक PDF में मर्ज करें</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>सभी छवियों से एक PDF बनाएँ, जिसका नाम पहली छवि का हो</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>बदलें</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>छवियों को PDF में बदलें</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>घुमाएँ</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>घड़ी की दिशा में डिग्री; अन्य कोण के लिए उसे लिखें और Enter दबाएँ</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>पृष्ठ आकार</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>हर छवि को इस पृष्ठ में समायोजित करें</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>संपीडन</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>PDF में छवियाँ कैसे सहेजी जाती हैं</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>शीर्षक</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>PDF का शीर्षक</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>विषय</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>PDF का विषय</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>कीवर्ड</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>PDF के कीवर्ड</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>लेखक</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>PDF का लेखक</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>स्वामी पासवर्ड</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>अनुमतियाँ बदलने के लिए आवश्यक; रिक्त स्थान न दें</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>उपयोगकर्ता पासवर्ड</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>PDF खोलने के लिए आवश्यक; रिक्त स्थान न दें</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>फ़ाइलें और आउटपुट फ़ोल्डर</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>स्वरूप</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>पृष्ठों का स्वरूप</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>विवरण</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>PDF का विवरण</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>सुरक्षा</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>पासवर्ड और अनुमतियाँ</translation>
    </message>
    <message>
        <source>About</source>
        <translation>परिचय</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>इस प्रोग्राम के बारे में</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>प्रगति</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>अब तक आरंभ की गई छवियाँ</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>फ़ाइल सूची</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>सभी हटाएँ</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>आउटपुट फ़ोल्डर</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>PDF पृष्ठों के स्वरूप के विकल्प:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>पृष्ठ आकार</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>श्वेत-श्याम PDF में बदलें</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>PDF के विवरण के विकल्प:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>सुरक्षा विकल्प: PDF के पासवर्ड
और अनुमतियाँ:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>प्रिंट करने की अनुमति दें</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>दस्तावेज़ संयोजन की अनुमति दें</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>सामग्री कॉपी करने की अनुमति दें</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>टिप्पणी करने की अनुमति दें</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>छवि फ़ाइल</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>फ़ाइल आकार</translation>
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
        <translation>कोई नहीं</translation>
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
        <translation>दोषरहित</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>रन-लेंथ एन्कोडिंग</translation>
    </message>
    <message>
        <source>Zip</source>
        <translation>Zip</translation>
    </message>
    <message>
        <source>A0 (841x1189 mm)</source>
        <translation>A0 (841x1189 मिमी)</translation>
    </message>
    <message>
        <source>A1 (594x841 mm)</source>
        <translation>A1 (594x841 मिमी)</translation>
    </message>
    <message>
        <source>A2 (420x594 mm)</source>
        <translation>A2 (420x594 मिमी)</translation>
    </message>
    <message>
        <source>A3 (297x420 mm)</source>
        <translation>A3 (297x420 मिमी)</translation>
    </message>
    <message>
        <source>A4 (210x297 mm)</source>
        <translation>A4 (210x297 मिमी)</translation>
    </message>
    <message>
        <source>A5 (148x210 mm)</source>
        <translation>A5 (148x210 मिमी)</translation>
    </message>
    <message>
        <source>A6 (105x148 mm)</source>
        <translation>A6 (105x148 मिमी)</translation>
    </message>
    <message>
        <source>A7 (74x105 mm)</source>
        <translation>A7 (74x105 मिमी)</translation>
    </message>
    <message>
        <source>A8 (52x74 mm)</source>
        <translation>A8 (52x74 मिमी)</translation>
    </message>
    <message>
        <source>A9 (37x52 mm)</source>
        <translation>A9 (37x52 मिमी)</translation>
    </message>
    <message>
        <source>ArchA (229x305 mm)</source>
        <translation>ArchA (229x305 मिमी)</translation>
    </message>
    <message>
        <source>ArchB (305x457 mm)</source>
        <translation>ArchB (305x457 मिमी)</translation>
    </message>
    <message>
        <source>ArchC (457x610 mm)</source>
        <translation>ArchC (457x610 मिमी)</translation>
    </message>
    <message>
        <source>ArchD (610x914 mm)</source>
        <translation>ArchD (610x914 मिमी)</translation>
    </message>
    <message>
        <source>ArchE (914x1219 mm)</source>
        <translation>ArchE (914x1219 मिमी)</translation>
    </message>
    <message>
        <source>Ledger (431.8x279. 4mm)</source>
        <translation>Ledger (431.8x279.4 मिमी)</translation>
    </message>
    <message>
        <source>Legal (215.9x355.6 mm)</source>
        <translation>Legal (215.9x355.6 मिमी)</translation>
    </message>
    <message>
        <source>Letter (215.9x279.4 mm)</source>
        <translation>Letter (215.9x279.4 मिमी)</translation>
    </message>
    <message>
        <source>Tabloid (279.4x431.8 mm)</source>
        <translation>Tabloid (279.4x431.8 मिमी)</translation>
    </message>
    <message>
        <source>Drag rows or press %1 and %2 to change the order of the pages.</source>
        <translation>पृष्ठों का क्रम बदलने के लिए पंक्तियाँ खींचें या %1 और %2 दबाएँ।</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>छवि खोलें</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>PDF खोलें</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>फ़ोल्डर में दिखाएँ</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>ऊपर ले जाएँ</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>नीचे ले जाएँ</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>सबसे ऊपर ले जाएँ</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>सबसे नीचे ले जाएँ</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>नाम से क्रमबद्ध करें, 10 से पहले 2</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>जोड़ने के क्रम में रखें</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>सभी चुनें</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>छवियाँ जोड़ें…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>बाहर जाएँ</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>विकल्प</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>सब रीसेट करें</translation>
    </message>
</context>
</TS>

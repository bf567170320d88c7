<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>程式無法啟動：%1。它需要在 XDG_DATA_HOME 或 ~/.local/share 中有自己的資料夾，可以在其中寫入、建立連結並執行程式。</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>程式無法啟動：%1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>沒有可顯示視窗的顯示器。</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>沒有選項 %1；請參閱 --help。</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>沒有檔案 %1。</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>將影像轉換為 PDF 文件。</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>開啟視窗時列出的影像。</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>顯示此說明並結束。</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>顯示版本並結束。</translation>
    </message>
</context>
<context>
    <name>HexSpinBox</name>
    <message>
        <source>pt</source>
        <translation>點</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>公分</translation>
    </message>
    <message>
        <source>in</source>
        <translation>英吋</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro 影像轉 PDF 轉換器</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>沒有檔案</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>請選擇要轉換的檔案。</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>所有支援的格式(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP 檔案(*.bmp);;GIF 檔案(*.gif);;JPEG 檔案(*.jpg;*.jpeg);;PBM 檔案(*.pbm);;PCX 檔案(*.pcx);;PNG 檔案(*.png);;PPM 檔案(*.ppm);;TIF 檔案(*.tif;*.tiff);;所有檔案(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>選擇要轉換的檔案</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>選擇用來儲存轉換後檔案的資料夾。</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>檔案清單</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>要轉換的影像；將檔案拖放到此處即可新增</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>目前列的影像</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>將影像加入清單</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>從清單移除選取的影像</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>全部移除</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>清空清單</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>輸出資料夾</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>存放 PDF 檔案的資料夾</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>選擇輸出資料夾</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>合併為單一 PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>將所有影像合併為單一 PDF，以第一個影像命名</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>轉換</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>將影像轉換為 PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋轉</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>順時針旋轉的角度；若要使用其他角度，請輸入後按 Enter 鍵</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>頁面大小</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>縮放每個影像以符合此頁面</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>壓縮</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>影像在 PDF 中的儲存方式</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>PDF 的標題</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>主旨</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>PDF 的主旨</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>關鍵字</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>PDF 的關鍵字</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>PDF 的作者</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>擁有者密碼</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>變更權限時需要；不可包含空格</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>使用者密碼</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>開啟 PDF 時需要；不可包含空格</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>檔案與輸出資料夾</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外觀</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>頁面外觀</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>PDF 的描述</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>安全性</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>密碼與權限</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>關於本程式</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>已開始處理的影像</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>檔案清單</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>全部移除</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>輸出資料夾</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>PDF 頁面的外觀選項：</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>頁面大小</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>轉換為黑白 PDF</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>PDF 的描述選項：</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>PDF 的安全性選項：
密碼與權限</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>允許列印</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>允許文件組合</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>允許複製內容</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>允許加註</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>影像檔</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>檔案大小</translation>
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
        <translation>無</translation>
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
        <translation>無失真</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>變動長度編碼</translation>
    </message>
    <message>
        <source>Zip</source>
        <translation>Zip</translation>
    </message>
    <message>
        <source>A0 (841x1189 mm)</source>
        <translation>A0 (841x1189 公釐)</translation>
    </message>
    <message>
        <source>A1 (594x841 mm)</source>
        <translation>A1 (594x841 公釐)</translation>
    </message>
    <message>
        <source>A2 (420x594 mm)</source>
        <translation>A2 (420x594 公釐)</translation>
    </message>
    <message>
        <source>A3 (297x420 mm)</source>
        <translation>A3 (297x420 公釐)</translation>
    </message>
    <message>
        <source>A4 (210x297 mm)</source>
        <translation>A4 (210x297 公釐)</translation>
    </message>
    <message>
        <source>A5 (148x210 mm)</source>
        <translation>A5 (148x210 公釐)</translation>
    </message>
    <message>
        <source>A6 (105x148 mm)</source>
        <translation>A6 (105x148 公釐)</translation>
    </message>
    <message>
        <source>A7 (74x105 mm)</source>
        <translation>A7 (74x105 公釐)</translation>
    </message>
    <message>
        <source>A8 (52x74 mm)</source>
        <translation>A8 (52x74 公釐)</translation>
    </message>
    <message>
        <source>A9 (37x52 mm)</source>
        <translation>A9 (37x52 公釐)</translation>
    </message>
    <message>
        <source>ArchA (229x305 mm)</source>
        <translation>ArchA (229x305 公釐)</translation>
    </message>
    <message>
        <source>ArchB (305x457 mm)</source>
        <translation>ArchB (305x457 公釐)</translation>
    </message>
    <message>
        <source>ArchC (457x610 mm)</source>
        <translation>ArchC (457x610 公釐)</translation>
    </message>
    <message>
        <source>ArchD (610x914 mm)</source>
        <translation>ArchD (610x914 公釐)</translation>
    </message>
    <message>
        <source>ArchE (914x1219 mm)</source>
        <translation>ArchE (914x1219 公釐)</translation>
    </message>
    <message>
        <source>Ledger (431.8x279. 4mm)</source>
        <translation>Ledger (431.8x279.4 公釐)</translation>
    </message>
    <message>
        <source>Legal (215.9x355.6 mm)</source>
        <translation>Legal (215.9x355.6 公釐)</translation>
    </message>
    <message>
        <source>Letter (215.9x279.4 mm)</source>
        <translation>Letter (215.9x279.4 公釐)</translation>
    </message>
    <message>
        <source>Tabloid (279.4x431.8 mm)</source>
        <translation>Tabloid (279.4x431.8 公釐)</translation>
    </message>
    <message>
        <source>Drag rows or press %1 and %2 to change the order of the pages.</source>
        <translation>拖曳列或按 %1 和 %2 可變更頁面順序。</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>開啟影像</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>開啟 PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在資料夾中顯示</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>移至頂端</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>移至底端</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>依名稱排序，2 在 10 之前</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>依加入順序排序</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>加入影像…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>全部重設</translation>
    </message>
</context>
</TS>

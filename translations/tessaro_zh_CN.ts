<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>程序无法启动：%1。它需要在 XDG_DATA_HOME 或 ~/.local/share 中有自己的文件夹，可以在其中写入、创建链接并运行程序。</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>程序无法启动：%1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>没有可显示窗口的显示器。</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>没有选项 %1；请参阅 --help。</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>没有文件 %1。</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>将图像转换为 PDF 文档。</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>打开窗口时列出的图像。</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>显示此帮助并退出。</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>显示版本并退出。</translation>
    </message>
</context>
<context>
    <name>HexSpinBox</name>
    <message>
        <source>pt</source>
        <translation>磅</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>厘米</translation>
    </message>
    <message>
        <source>in</source>
        <translation>英寸</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro 图像转 PDF 转换器</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>没有文件</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>请选择要转换的文件。</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>所有支持的格式(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP 文件(*.bmp);;GIF 文件(*.gif);;JPEG 文件(*.jpg;*.jpeg);;PBM 文件(*.pbm);;PCX 文件(*.pcx);;PNG 文件(*.png);;PPM 文件(*.ppm);;TIF 文件(*.tif;*.tiff);;所有文件(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>选择要转换的文件</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>选择用于保存转换后文件的文件夹。</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>文件列表</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>要转换的图像；将文件拖放到此处即可添加</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>当前行的图像</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>将图像添加到列表</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>从列表中移除选定的图像</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>全部移除</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>清空列表</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>输出文件夹</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>存放 PDF 文件的文件夹</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>选择输出文件夹</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>合并为一个 PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>将所有图像合并为一个 PDF，以第一个图像命名</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>转换</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>将图像转换为 PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>顺时针旋转的角度；如需其他角度，请输入并按 Enter 键</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>页面大小</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>缩放每个图像以适合此页面</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>压缩</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>图像在 PDF 中的存储方式</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>PDF 的标题</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>PDF 的主题</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>PDF 的关键字</translation>
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
        <translation>所有者密码</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>更改权限时需要；不能包含空格</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>用户密码</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>打开 PDF 时需要；不能包含空格</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>文件和输出文件夹</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>页面外观</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>PDF 的说明</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>安全</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>密码和权限</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>关于本程序</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>已开始处理的图像</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>文件列表</translation>
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
        <translation>输出文件夹</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>PDF 页面的外观选项：</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>页面大小</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>转换为黑白 PDF</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>PDF 的说明选项：</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>PDF 的安全选项：
密码和权限</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>允许打印</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>允许文档组合</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>允许复制内容</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>允许注释</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>图像文件</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>文件大小</translation>
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
        <translation>无</translation>
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
        <translation>无损</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>行程长度编码</translation>
    </message>
    <message>
        <source>Zip</source>
        <translation>Zip</translation>
    </message>
    <message>
        <source>A0 (841x1189 mm)</source>
        <translation>A0 (841x1189 毫米)</translation>
    </message>
    <message>
        <source>A1 (594x841 mm)</source>
        <translation>A1 (594x841 毫米)</translation>
    </message>
    <message>
        <source>A2 (420x594 mm)</source>
        <translation>A2 (420x594 毫米)</translation>
    </message>
    <message>
        <source>A3 (297x420 mm)</source>
        <translation>A3 (297x420 毫米)</translation>
    </message>
    <message>
        <source>A4 (210x297 mm)</source>
        <translation>A4 (210x297 毫米)</translation>
    </message>
    <message>
        <source>A5 (148x210 mm)</source>
        <translation>A5 (148x210 毫米)</translation>
    </message>
    <message>
        <source>A6 (105x148 mm)</source>
        <translation>A6 (105x148 毫米)</translation>
    </message>
    <message>
        <source>A7 (74x105 mm)</source>
        <translation>A7 (74x105 毫米)</translation>
    </message>
    <message>
        <source>A8 (52x74 mm)</source>
        <translation>A8 (52x74 毫米)</translation>
    </message>
    <message>
        <source>A9 (37x52 mm)</source>
        <translation>A9 (37x52 毫米)</translation>
    </message>
    <message>
        <source>ArchA (229x305 mm)</source>
        <translation>ArchA (229x305 毫米)</translation>
    </message>
    <message>
        <source>ArchB (305x457 mm)</source>
        <translation>ArchB (305x457 毫米)</translation>
    </message>
    <message>
        <source>ArchC (457x610 mm)</source>
        <translation>ArchC (457x610 毫米)</translation>
    </message>
    <message>
        <source>ArchD (610x914 mm)</source>
        <translation>ArchD (610x914 毫米)</translation>
    </message>
    <message>
        <source>ArchE (914x1219 mm)</source>
        <translation>ArchE (914x1219 毫米)</translation>
    </message>
    <message>
        <source>Ledger (431.8x279. 4mm)</source>
        <translation>Ledger (431.8x279.4 毫米)</translation>
    </message>
    <message>
        <source>Legal (215.9x355.6 mm)</source>
        <translation>Legal (215.9x355.6 毫米)</translation>
    </message>
    <message>
        <source>Letter (215.9x279.4 mm)</source>
        <translation>Letter (215.9x279.4 毫米)</translation>
    </message>
    <message>
        <source>Tabloid (279.4x431.8 mm)</source>
        <translation>Tabloid (279.4x431.8 毫米)</translation>
    </message>
    <message>
        <source>Drag rows or press %1 and %2 to change the order of the pages.</source>
        <translation>拖动行或按 %1 和 %2 可更改页面顺序。</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>打开图像</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>打开 PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
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
        <translation>移至顶部</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>移至底部</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>按名称排序，2 在 10 之前</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>按添加顺序排序</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>添加图像…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>全部重置</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>プログラムを起動できません: %1。XDG_DATA_HOME または ~/.local/share に、書き込み、リンクの作成、プログラムの実行ができる専用のフォルダーが必要です。</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>プログラムを起動できません: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>ウィンドウを表示するディスプレイがありません。</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>オプション %1 はありません。--help をご覧ください。</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>ファイル %1 はありません。</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>画像を PDF 文書に変換します。</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>ウィンドウを開いたときに一覧に入れる画像。</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>このヘルプを表示して終了します。</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>バージョンを表示して終了します。</translation>
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
        <translation>インチ</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro 画像 PDF 変換</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>変換するファイルを選択してください。</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>対応しているすべての形式(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP ファイル(*.bmp);;GIF ファイル(*.gif);;JPEG ファイル(*.jpg;*.jpeg);;PBM ファイル(*.pbm);;PCX ファイル(*.pcx);;PNG ファイル(*.png);;PPM ファイル(*.ppm);;TIF ファイル(*.tif;*.tiff);;すべてのファイル(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>変換するファイルを選択</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>変換したファイルを保存するフォルダーを選択してください。</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>ファイル一覧</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>変換する画像です。ファイルをここにドロップすると追加できます</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>現在の行の画像</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>一覧に画像を追加します</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>選択した画像を一覧から除きます</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>すべて除外</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>一覧を空にします</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>出力フォルダー</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>PDF ファイルを保存するフォルダー</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>出力フォルダーを選択</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>1 つの PDF に結合</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>すべての画像から 1 つの PDF を作成します (名前は最初の画像と同じ)</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>変換</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>画像を PDF に変換します</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>時計回りの角度です。ほかの角度は入力して Enter キーを押してください</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>各画像をこの用紙に合わせて拡大縮小します</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>圧縮</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>PDF 内での画像の保存方法</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>PDF のタイトル</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>件名</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>PDF の件名</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>PDF のキーワード</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作成者</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>PDF の作成者</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>所有者パスワード</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>権限の変更に必要です。空白は使えません</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>ユーザーパスワード</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>PDF を開くときに必要です。空白は使えません</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>ファイルと出力フォルダー</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>ページの外観</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>PDF の説明</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>セキュリティ</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>パスワードと権限</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>このプログラムについて</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>これまでに開始した画像</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>ファイル一覧</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>すべて除外</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>出力フォルダー</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>PDF ページの外観オプション:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>白黒の PDF に変換</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>PDF の説明オプション:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>PDF のセキュリティオプション:
パスワードと権限</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>印刷を許可</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>文書アセンブリを許可</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>内容のコピーを許可</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>注釈を許可</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>画像ファイル</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>ファイルサイズ</translation>
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
        <translation>なし</translation>
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
        <translation>可逆圧縮</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>ランレングス符号化</translation>
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
        <translation>行をドラッグするか %1 と %2 を押すと、ページの順序を変更できます。</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>画像を開く</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>PDF を開く</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダーに表示</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>先頭へ移動</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>末尾へ移動</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>名前順に並べ替え (2 は 10 の前)</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>追加した順に並べ替え</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>画像を追加...</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>リセット</translation>
    </message>
</context>
</TS>

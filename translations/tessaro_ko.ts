<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>프로그램을 시작할 수 없습니다: %1. XDG_DATA_HOME 또는 ~/.local/share에 쓰기, 링크 만들기, 프로그램 실행이 가능한 전용 폴더가 필요합니다.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>프로그램을 시작할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>창을 표시할 디스플레이가 없습니다.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>%1 옵션이 없습니다. --help를 참고하세요.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>%1 파일이 없습니다.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>이미지를 PDF 문서로 변환합니다.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>창을 열 때 목록에 넣을 이미지.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>이 도움말을 표시하고 끝냅니다.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>버전을 표시하고 끝냅니다.</translation>
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
        <translation>인치</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro 이미지 PDF 변환기</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>파일 없음</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>변환할 파일을 선택하세요.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>지원되는 모든 형식(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP 파일(*.bmp);;GIF 파일(*.gif);;JPEG 파일(*.jpg;*.jpeg);;PBM 파일(*.pbm);;PCX 파일(*.pcx);;PNG 파일(*.png);;PPM 파일(*.ppm);;TIF 파일(*.tif;*.tiff);;모든 파일(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>변환할 파일 선택</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>변환한 파일을 저장할 폴더를 선택하세요.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>파일 목록</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>변환할 이미지입니다. 파일을 여기에 끌어다 놓으면 추가됩니다</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>현재 행의 이미지</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>목록에 이미지 추가</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>선택한 이미지를 목록에서 제거</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>모두 제거</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>목록 비우기</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>출력 폴더</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>PDF 파일이 저장되는 폴더</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>출력 폴더 선택</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>하나의 PDF로 병합</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>모든 이미지로 PDF 하나를 만들고 첫 번째 이미지의 이름을 붙입니다</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>변환</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>이미지를 PDF로 변환</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>시계 방향 각도입니다. 다른 각도는 입력한 뒤 Enter 키를 누르세요</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>용지 크기</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>각 이미지를 이 용지에 맞게 크기 조정</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>압축</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>PDF에 이미지가 저장되는 방식</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>제목</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>PDF의 제목</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>주제</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>PDF의 주제</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>키워드</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>PDF의 키워드</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>작성자</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>PDF의 작성자</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>소유자 암호</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>권한을 변경할 때 필요합니다. 공백은 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>사용자 암호</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>PDF를 열 때 필요합니다. 공백은 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>파일과 출력 폴더</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>모양</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>페이지 모양</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>PDF 설명</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>보안</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>암호와 권한</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>이 프로그램 정보</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>지금까지 시작한 이미지</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>파일 목록</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>모두 제거</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>출력 폴더</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>PDF 페이지 모양 옵션:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>용지 크기</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>흑백 PDF로 변환</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>PDF 설명 옵션:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>PDF 보안 옵션:
암호와 권한</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>인쇄 허용</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>문서 어셈블리 허용</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>내용 복사 허용</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>주석 달기 허용</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>이미지 파일</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>파일 크기</translation>
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
        <translation>없음</translation>
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
        <translation>무손실</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>런 길이 부호화</translation>
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
        <translation>행을 끌거나 %1 및 %2 키를 눌러 페이지 순서를 바꿀 수 있습니다.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>이미지 열기</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>PDF 열기</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>폴더에서 보기</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>위로 이동</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>아래로 이동</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>맨 위로 이동</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>맨 아래로 이동</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>이름순 정렬, 2가 10보다 먼저</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>추가한 순서로 정렬</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>이미지 추가...</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>끝내기</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>모두 재설정</translation>
    </message>
</context>
</TS>

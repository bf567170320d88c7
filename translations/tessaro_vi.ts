<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Tessaro Image to PDF Converter v2.0</source>
        <translation>Tessaro Image to PDF Converter v2.0</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Giới thiệu</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The program cannot start: %1. It needs a folder of its own, in XDG_DATA_HOME or ~/.local/share, in which it can write, make links and run programs.</source>
        <translation>Không thể khởi động chương trình: %1. Chương trình cần một thư mục riêng trong XDG_DATA_HOME hoặc ~/.local/share, nơi có thể ghi, tạo liên kết và chạy chương trình.</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Không thể khởi động chương trình: %1</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Không có màn hình để hiển thị cửa sổ.</translation>
    </message>
    <message>
        <source>There is no option %1; see --help.</source>
        <translation>Không có tùy chọn %1; xem --help.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Không có tệp %1.</translation>
    </message>
    <message>
        <source>Turns images into PDF documents.</source>
        <translation>Chuyển ảnh thành tài liệu PDF.</translation>
    </message>
    <message>
        <source>Images to list when the window opens.</source>
        <translation>Các ảnh được liệt kê khi cửa sổ mở.</translation>
    </message>
    <message>
        <source>Show this help and end.</source>
        <translation>Hiện trợ giúp này rồi thoát.</translation>
    </message>
    <message>
        <source>Show the version and end.</source>
        <translation>Hiện phiên bản rồi thoát.</translation>
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
        <translation>inch</translation>
    </message>
</context>
<context>
    <name>Process</name>
    <message>
        <source>Tessaro Image to PDF Converter</source>
        <translation>Tessaro Chuyển ảnh sang PDF</translation>
    </message>
    <message>
        <source>Empty input</source>
        <translation>Chưa có tệp</translation>
    </message>
    <message>
        <source>Please choose files to convert.</source>
        <translation>Vui lòng chọn các tệp cần chuyển đổi.</translation>
    </message>
    <message>
        <source>All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)</source>
        <translation>Mọi định dạng được hỗ trợ(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;Tệp BMP(*.bmp);;Tệp GIF(*.gif);;Tệp JPEG(*.jpg;*.jpeg);;Tệp PBM(*.pbm);;Tệp PCX(*.pcx);;Tệp PNG(*.png);;Tệp PPM(*.ppm);;Tệp TIF(*.tif;*.tiff);;MỌI tệp(*.*)</translation>
    </message>
    <message>
        <source>Choose files to convert</source>
        <translation>Chọn các tệp cần chuyển đổi</translation>
    </message>
    <message>
        <source>Browse a floder to save the converted files.</source>
        <translation>Chọn thư mục để lưu các tệp đã chuyển đổi.</translation>
    </message>
</context>
<context>
    <name>process</name>
    <message>
        <source>File list</source>
        <translation>Danh sách tệp</translation>
    </message>
    <message>
        <source>The images to convert; drop files here to add some</source>
        <translation>Các ảnh cần chuyển đổi; thả tệp vào đây để thêm</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Xem thử</translation>
    </message>
    <message>
        <source>The image of the current row</source>
        <translation>Ảnh ở hàng hiện tại</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Mở</translation>
    </message>
    <message>
        <source>Add images to the list</source>
        <translation>Thêm ảnh vào danh sách</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Gỡ bỏ</translation>
    </message>
    <message>
        <source>Take the selected images off the list</source>
        <translation>Gỡ các ảnh đã chọn khỏi danh sách</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Gỡ bỏ hết</translation>
    </message>
    <message>
        <source>Empty the list</source>
        <translation>Làm trống danh sách</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Thư mục xuất</translation>
    </message>
    <message>
        <source>The folder that gets the PDF files</source>
        <translation>Thư mục chứa các tệp PDF</translation>
    </message>
    <message>
        <source>Browse for the output folder</source>
        <translation>Chọn thư mục xuất</translation>
    </message>
    <message>
        <source>Merge to single PDF</source>
        <translation>Gộp thành một PDF</translation>
    </message>
    <message>
        <source>Make one PDF of all images, named after the first</source>
        <translation>Tạo một PDF từ mọi ảnh, đặt tên theo ảnh đầu tiên</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Chuyển đổi</translation>
    </message>
    <message>
        <source>Convert the images to PDF</source>
        <translation>Chuyển đổi ảnh sang PDF</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Xoay</translation>
    </message>
    <message>
        <source>Degrees clockwise; type another angle and press Enter</source>
        <translation>Số độ theo chiều kim đồng hồ; để dùng góc khác, hãy gõ vào rồi nhấn Enter</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Khổ giấy</translation>
    </message>
    <message>
        <source>Scale each image to fit this page</source>
        <translation>Co giãn mỗi ảnh cho vừa trang này</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Nén</translation>
    </message>
    <message>
        <source>How the images are stored in the PDF</source>
        <translation>Cách lưu ảnh trong PDF</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Tiêu đề</translation>
    </message>
    <message>
        <source>Title of the PDF</source>
        <translation>Tiêu đề của PDF</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Chủ đề</translation>
    </message>
    <message>
        <source>Subject of the PDF</source>
        <translation>Chủ đề của PDF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Từ khóa</translation>
    </message>
    <message>
        <source>Keywords of the PDF</source>
        <translation>Từ khóa của PDF</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Tác giả</translation>
    </message>
    <message>
        <source>Author of the PDF</source>
        <translation>Tác giả của PDF</translation>
    </message>
    <message>
        <source>Owner password</source>
        <translation>Mật khẩu chủ sở hữu</translation>
    </message>
    <message>
        <source>Needed to change the permissions; no blanks</source>
        <translation>Cần để thay đổi quyền; không có dấu cách</translation>
    </message>
    <message>
        <source>User password</source>
        <translation>Mật khẩu người dùng</translation>
    </message>
    <message>
        <source>Needed to open the PDF; no blanks</source>
        <translation>Cần để mở PDF; không có dấu cách</translation>
    </message>
    <message>
        <source>Files and output folder</source>
        <translation>Tệp và thư mục xuất</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Hình thức</translation>
    </message>
    <message>
        <source>Appearance of the pages</source>
        <translation>Hình thức trang</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Mô tả</translation>
    </message>
    <message>
        <source>Description of the PDF</source>
        <translation>Mô tả PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Bảo mật</translation>
    </message>
    <message>
        <source>Passwords and permissions</source>
        <translation>Mật khẩu và quyền</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Giới thiệu</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Giới thiệu chương trình</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Tiến độ</translation>
    </message>
    <message>
        <source>Images started so far</source>
        <translation>Số ảnh đã bắt đầu</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Danh sách tệp</translation>
    </message>
    <message>
        <source>Romove</source>
        <translation>Gỡ bỏ</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Gỡ bỏ hết</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>Thư mục xuất</translation>
    </message>
    <message>
        <source>Appearance options to adjust converted PDF pages:</source>
        <translation>Tùy chọn về hình thức các trang PDF:</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Khổ giấy</translation>
    </message>
    <message>
        <source>Convert images to black-and-white PDF</source>
        <translation>Chuyển sang PDF đen trắng</translation>
    </message>
    <message>
        <source>Description options to set PDF description:</source>
        <translation>Tùy chọn mô tả PDF:</translation>
    </message>
    <message>
        <source>Security options to set password and permissions 
for converted PDF:</source>
        <translation>Tùy chọn bảo mật: mật khẩu và quyền
của PDF:</translation>
    </message>
    <message>
        <source>Allow printing</source>
        <translation>Cho phép in</translation>
    </message>
    <message>
        <source>Allow document assembly</source>
        <translation>Cho phép lắp ghép tài liệu</translation>
    </message>
    <message>
        <source>Allow content copying</source>
        <translation>Cho phép sao chép nội dung</translation>
    </message>
    <message>
        <source>Allow commenting</source>
        <translation>Cho phép chú thích</translation>
    </message>
    <message>
        <source>Image File</source>
        <translation>Tệp ảnh</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Kích cỡ tệp</translation>
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
        <translation>Không</translation>
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
        <translation>Không mất dữ liệu</translation>
    </message>
    <message>
        <source>Lempel-Ziv-Welch</source>
        <translation>Lempel-Ziv-Welch</translation>
    </message>
    <message>
        <source>Run-length encoding</source>
        <translation>Mã hóa loạt dài</translation>
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
        <translation>Kéo các hàng hoặc nhấn %1 và %2 để đổi thứ tự trang.</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Mở ảnh</translation>
    </message>
    <message>
        <source>Open PDF</source>
        <translation>Mở PDF</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Hiện trong thư mục</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Chuyển lên</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Chuyển xuống</translation>
    </message>
    <message>
        <source>Move to Top</source>
        <translation>Chuyển lên đầu</translation>
    </message>
    <message>
        <source>Move to Bottom</source>
        <translation>Chuyển xuống cuối</translation>
    </message>
    <message>
        <source>Sort by Name, 2 before 10</source>
        <translation>Sắp xếp theo tên, 2 trước 10</translation>
    </message>
    <message>
        <source>Sort as Added</source>
        <translation>Sắp xếp theo thứ tự thêm vào</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Chọn tất cả</translation>
    </message>
    <message>
        <source>Add Images...</source>
        <translation>Thêm ảnh…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Thoát</translation>
    </message>
</context>
<context>
    <name>setDialog</name>
    <message>
        <source>Option</source>
        <translation>Tùy chọn</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Đặt lại</translation>
    </message>
</context>
</TS>

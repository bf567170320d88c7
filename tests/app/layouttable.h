#pragma once

#include <QRect>

/// What the layout says of one object. `settings` are "property=value" words, separated by
/// semicolons; an icon or pixmap is named by its image.
struct LayoutRow
{
    const char *name;
    const char *className;
    const char *parent;
    QRect geometry;
    const char *settings;
};

// clang-format off
/// Objects without a geometry are laid out by their parent.
inline constexpr LayoutRow layoutTable[] = {
    // The form's children
    {"stackedWidget_dialog", "QStackedWidget", "process", {0, 30, 551, 351}, "frameShape=NoFrame;lineWidth=1;count=4;currentIndex=0"},
    {"frame_8", "QFrame", "process", {-10, 380, 571, 81}, "styleSheet=background-color:#F8F8F8;frameShape=StyledPanel;frameShadow=Raised"},
    {"progressBar", "QProgressBar", "process", {23, 464, 521, 16}, "autoFillBackground=false;value=45;minimum=0;maximum=100;invertedAppearance=false;styleSheet=QProgressBar::chunk {\n     background-color: #7FFFD4\\;\n     width: 10px\\;\n     margin: 0.5px\\;\n}"},

    // Side buttons
    {"pushButton_Inout", "QPushButton", "frame_8", {40, -1, 81, 81}, "text=;icon=inout3.png;iconSize=70x75;flat=true;enabled=true"},
    {"pushButton_ImageSetting", "QPushButton", "frame_8", {145, -1, 81, 81}, "text=;icon=appearance1.png;iconSize=70x75;flat=true;styleSheet=;autoDefault=false;checkable=false"},
    {"pushButton_PDFSetting", "QPushButton", "frame_8", {250, -2, 81, 81}, "text=;icon=description1.png;iconSize=70x75;flat=true"},
    {"pushButton_Security", "QPushButton", "frame_8", {355, -2, 81, 81}, "text=;icon=security1.png;iconSize=70x75;flat=true"},
    {"aboutpushButton", "QPushButton", "frame_8", {460, -2, 81, 81}, "text=;icon=about4.png;iconSize=70x75;flat=true"},

    // Input files and output folder
    {"page", "QWidget", "stackedWidget_dialog", {}, ""},
    {"frame_6", "QFrame", "page", {-10, 0, 571, 281}, "styleSheet=.QWidget\n{background-color:#F8F8F8};frameShape=StyledPanel;frameShadow=Sunken"},
    {"label", "QLabel", "frame_6", {36, 2, 91, 21}, "text=File List;alignment=AlignLeft|AlignVCenter"},
    {"inputfiletableWidget", "QTableWidget", "frame_6", {34, 20, 341, 211}, "columnCount=2;rowCount=0;autoFillBackground=true;styleSheet=;frameShadow=Raised;lineWidth=2;autoScroll=true;editTriggers=NoEditTriggers;sortingEnabled=true;selectionMode=ExtendedSelection"},
    {"layoutWidget", "QWidget", "frame_6", {34, 237, 341, 31}, ""},
    {"openfileButton", "QPushButton", "layoutWidget", {}, "text=Open;icon=document_add.ico;iconSize=24x24;flat=true;default=false"},
    {"removeButton", "QPushButton", "layoutWidget", {}, "text=Romove;icon=document_delete.ico;iconSize=24x24;flat=true"},
    {"removeallButton", "QPushButton", "layoutWidget", {}, "text=Remove All;icon=trashcan_empty(1).ico;iconSize=24x24;flat=true"},
    {"label_2", "QLabel", "frame_6", {400, 4, 51, 21}, "text=Preview;alignment=AlignLeft|AlignVCenter"},
    {"previewframe", "QFrame", "frame_6", {400, 42, 151, 187}, "styleSheet=;frameShape=StyledPanel;frameShadow=Raised"},
    {"runButton", "QPushButton", "frame_6", {409, 280, 71, 72}, "text=;icon=convert3.png;iconSize=60x64;flat=true;layoutDirection=LeftToRight"},
    {"outputfolderlabel", "QLabel", "frame_6", {10, 296, 101, 16}, "text=Output Folder;alignment=AlignRight|AlignVCenter"},
    {"checkBox_joinpdf", "QCheckBox", "frame_6", {117, 327, 241, 16}, "text=Merge to single PDF;checked=false"},
    {"outputfolderEdit", "QLineEdit", "frame_6", {120, 292, 201, 20}, "text=;readOnly=false"},
    {"outputButton", "QPushButton", "frame_6", {320, 285, 41, 31}, "text=;icon=folder.ico;iconSize=28x28;flat=true"},

    // Image appearance
    {"page_2", "QWidget", "stackedWidget_dialog", {}, ""},
    {"label_12", "QLabel", "page_2", {117, 5, 371, 41}, "text=Appearance options to adjust converted PDF pages:"},
    {"frame_4", "QFrame", "page_2", {-10, 50, 571, 301}, "frameShape=StyledPanel;frameShadow=Raised"},
    {"label_15", "QLabel", "frame_4", {120, 50, 81, 21}, "text=Rotate;alignment=AlignRight|AlignVCenter"},
    {"comboBox_rotate", "QComboBox", "frame_4", {250, 50, 171, 26}, "editable=true;count=4;currentIndex=0;currentText=0"},
    {"label_14", "QLabel", "frame_4", {140, 110, 62, 21}, "text=Page Size;alignment=AlignRight|AlignVCenter"},
    {"comboBox_pagesize", "QComboBox", "frame_4", {250, 110, 171, 26}, "editable=false;count=20;currentIndex=0;currentText="},
    {"label_16", "QLabel", "frame_4", {100, 170, 101, 21}, "text=Compression;alignment=AlignRight|AlignVCenter"},
    {"comboBox_compresstype", "QComboBox", "frame_4", {250, 170, 171, 26}, "editable=false;count=11;currentIndex=0;currentText="},
    {"checkBox_monochrome", "QCheckBox", "frame_4", {250, 230, 311, 20}, "text=Convert images to black-and-white PDF;checked=false"},
    {"label_3", "QLabel", "page_2", {60, 0, 41, 51}, "text=;pixmap=photos.ico;scaledContents=false"},

    // Document description
    {"page_3", "QWidget", "stackedWidget_dialog", {}, ""},
    {"label_6", "QLabel", "page_3", {110, 5, 371, 41}, "text=Description options to set PDF description:"},
    {"frame_2", "QFrame", "page_3", {0, 50, 561, 301}, "frameShape=StyledPanel;frameShadow=Raised"},
    {"label_19", "QLabel", "frame_2", {100, 35, 54, 16}, "text=Title;alignment=AlignRight|AlignVCenter"},
    {"lineEdit_title", "QLineEdit", "frame_2", {200, 30, 261, 20}, "text="},
    {"label_20", "QLabel", "frame_2", {100, 80, 54, 16}, "text=Subject;alignment=AlignRight|AlignVCenter"},
    {"lineEdit_subject", "QLineEdit", "frame_2", {200, 75, 261, 20}, "text="},
    {"label_21", "QLabel", "frame_2", {70, 125, 81, 21}, "text=Keywords;alignment=AlignRight|AlignVCenter"},
    {"lineEdit_keywords", "QLineEdit", "frame_2", {200, 120, 261, 20}, "text="},
    {"label_22", "QLabel", "frame_2", {100, 170, 54, 16}, "text=Author;alignment=AlignRight|AlignVCenter"},
    {"lineEdit_author", "QLineEdit", "frame_2", {200, 165, 261, 20}, "text="},
    {"label_4", "QLabel", "page_3", {60, 0, 41, 51}, "text=;pixmap=configuration_settings.ico"},

    // Security
    {"page_4", "QWidget", "stackedWidget_dialog", {}, ""},
    {"label_10", "QLabel", "page_4", {110, 10, 401, 41}, "text=Security options to set password and permissions \nfor converted PDF:"},
    {"frame_3", "QFrame", "page_4", {0, 50, 571, 301}, "frameShape=StyledPanel;frameShadow=Raised"},
    {"label_27", "QLabel", "frame_3", {60, 35, 131, 21}, "text=Owner password;alignment=AlignRight|AlignVCenter"},
    {"lineEdit_ownerpwd", "QLineEdit", "frame_3", {222, 30, 181, 20}, "text=;echoMode=Normal"},
    {"label_28", "QLabel", "frame_3", {70, 95, 121, 21}, "text=User password;alignment=AlignRight|AlignVCenter"},
    {"lineEdit_userpwd", "QLineEdit", "frame_3", {222, 90, 181, 20}, "text=;echoMode=Normal"},
    {"checkBox_allowprint", "QCheckBox", "frame_3", {220, 130, 251, 16}, "text=Allow printing;checked=false"},
    {"checkBox_allowmodify", "QCheckBox", "frame_3", {220, 160, 241, 16}, "text=Allow document assembly;checked=false"},
    {"checkBox_allowcopy", "QCheckBox", "frame_3", {220, 190, 271, 16}, "text=Allow content copying;checked=false"},
    {"checkBox_allowannotation", "QCheckBox", "frame_3", {220, 220, 331, 20}, "text=Allow commenting;checked=false"},
    {"label_5", "QLabel", "page_4", {60, 8, 41, 41}, "text=;pixmap=shield.ico"},
};
// clang-format on

/// The objects that the Tab key visits, in its order.
inline constexpr const char *tabOrder[] = {
    "openfileButton",
    "removeButton",
    "removeallButton",
    "outputfolderEdit",
    "outputButton",
    "checkBox_joinpdf",
    "comboBox_rotate",
    "comboBox_pagesize",
    "comboBox_compresstype",
    "checkBox_monochrome",
    "lineEdit_title",
    "lineEdit_subject",
    "lineEdit_keywords",
    "lineEdit_author",
    "lineEdit_ownerpwd",
    "lineEdit_userpwd",
    "checkBox_allowprint",
    "checkBox_allowmodify",
    "checkBox_allowcopy",
    "checkBox_allowannotation",
    "pushButton_Inout",
    "pushButton_ImageSetting",
    "pushButton_PDFSetting",
    "pushButton_Security",
    "runButton",
};

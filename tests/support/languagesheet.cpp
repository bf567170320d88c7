// Draws the four pages of the window in each language, a picture for each, and prints the size
// that its texts got and the text that needs most of its place.
//
//   tessaro-language-sheet FOLDER FONT POINTS [LANGUAGE...]

#include "startup.h"
#include "translation.h"
#include "windowcontrols.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPainter>
#include <QTableWidget>

#include <algorithm>
#include <cstdio>

namespace {

void fillIn(const WindowControls &controls)
{
    auto *table = controls.find<QTableWidget>("inputfiletableWidget");
    table->setRowCount(2);
    for (int row = 0; row < table->rowCount(); ++row) {
        table->setItem(row, 0,
                       new QTableWidgetItem(QStringLiteral("/home/user/Scans/%1.png").arg(row)));
        table->setItem(row, 1, new QTableWidgetItem(QStringLiteral("       123.456KB")));
    }
    controls.fill("outputfolderEdit", QStringLiteral("/home/user/PDF"));
    controls.fill("lineEdit_ownerpwd", QStringLiteral("secret!"));
    controls.select("comboBox_rotate", 1);
    controls.select("comboBox_pagesize", 16);
    controls.select("comboBox_compresstype", 9);
}

QImage sheetOf(WindowControls &controls)
{
    Process &window = controls.window;
    QImage sheet(window.size() * 2, QImage::Format_RGB32);
    QPainter painter(&sheet);
    int page = 0;
    for (const char *button : {"pushButton_Inout", "pushButton_ImageSetting",
                               "pushButton_PDFSetting", "pushButton_Security"}) {
        controls.press(button);
        const QPoint place(page % 2 * window.width(), page / 2 * window.height());
        painter.drawPixmap(place, window.grab());
        ++page;
    }
    return sheet;
}

double fullness(const QLabel &label)
{
    return label.text().isEmpty() ? 0 : double(label.sizeHint().width()) / label.width();
}

void printTightest(const WindowControls &controls, const QString &language)
{
    const auto labels = controls.window.findChildren<QLabel *>();
    const QLabel *tightest =
        *std::ranges::max_element(labels, {}, [](const QLabel *label) { return fullness(*label); });
    std::printf("%-5s %5.2f points; %s fills %.0f %% of %s\n", qPrintable(language),
                controls.find<QLabel>("label")->font().pointSizeF(),
                qUtf8Printable(tightest->text()), 100 * fullness(*tightest),
                qPrintable(tightest->objectName()));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() < 3)
        return 2;
    const QDir folder(QDir(arguments.takeFirst()).absolutePath());
    QFont font(arguments.takeFirst());
    font.setPointSizeF(arguments.takeFirst().toDouble());
    setUpApplication(application);
    QApplication::setFont(font);
    const QStringList languages =
        arguments.isEmpty() ? QStringList(QString()) + translatedLanguages() : arguments;
    for (const QString &language : languages) {
        installTranslators(application, language);
        WindowControls controls;
        fillIn(controls);
        const QString name = language.isEmpty() ? QStringLiteral("en") : language;
        if (!sheetOf(controls).save(folder.filePath(name + QStringLiteral(".png"))))
            return 1;
        printTightest(controls, name);
    }
    return 0;
}

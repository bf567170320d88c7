// The form as the layout builds it, before the window takes it over.

#include "layouttable.h"
#include "ui_process.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QMetaProperty>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The form on a bare widget.
struct Form
{
    Form() { ui.setupUi(&window); }

    QWidget *find(const char *name) { return window.findChild<QWidget *>(QLatin1String(name)); }

    QWidget window;
    Ui_process ui;
};

QIcon picture(const QString &name)
{
    return QIcon(u":/iconoption/icons/"_s + name);
}

QString nameWhenSame(const QPixmap &shown, const QPixmap &expected, const QString &name)
{
    const bool same = !shown.isNull() && shown.toImage() == expected.toImage();
    return same ? name : u"another picture"_s;
}

QString alignmentInWords(int alignment)
{
    QStringList words;
    for (const auto &[flag, word] :
         {std::pair(Qt::AlignLeft, u"AlignLeft"_s), std::pair(Qt::AlignRight, u"AlignRight"_s),
          std::pair(Qt::AlignHCenter, u"AlignHCenter"_s),
          std::pair(Qt::AlignJustify, u"AlignJustify"_s),
          std::pair(Qt::AlignAbsolute, u"AlignAbsolute"_s), std::pair(Qt::AlignTop, u"AlignTop"_s),
          std::pair(Qt::AlignBottom, u"AlignBottom"_s),
          std::pair(Qt::AlignVCenter, u"AlignVCenter"_s),
          std::pair(Qt::AlignBaseline, u"AlignBaseline"_s)}) {
        if (alignment & flag)
            words << word;
    }
    return words.join(QLatin1Char('|'));
}

/// The value of the property that `setting` names, as the layout table writes it.
QString valueInWords(const QWidget *widget, const QString &property, const QString &expected)
{
    const QVariant value = widget->property(property.toLatin1());
    if (property == QLatin1String("icon")) {
        const QSize size = widget->property("iconSize").toSize();
        return nameWhenSame(value.value<QIcon>().pixmap(size), picture(expected).pixmap(size),
                            expected);
    }
    if (property == QLatin1String("pixmap"))
        return nameWhenSame(value.value<QPixmap>(), picture(expected).pixmap(32, 32), expected);
    if (property == QLatin1String("iconSize"))
        return u"%1x%2"_s.arg(value.toSize().width()).arg(value.toSize().height());
    if (property == QLatin1String("alignment"))
        return alignmentInWords(value.toInt());
    return value.toString();
}

QStringList settingsOf(const QWidget *widget, const QStringList &expected)
{
    QStringList settings;
    for (const QString &setting : expected) {
        const QString property = setting.section(QLatin1Char('='), 0, 0);
        settings << property + QLatin1Char('=') +
                        valueInWords(widget, property, setting.section(QLatin1Char('='), 1));
    }
    return settings;
}

QStringList itemsOf(const QComboBox *box)
{
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items << box->itemText(i);
    return items;
}

} // namespace

class LayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void formHasItsSizeNameAndIcon();
    void objectIsAsTheTableSays_data();
    void objectIsAsTheTableSays();
    void thereIsNoObjectBesideTheTable();
    void pagesStandInTheirOrder();
    void fileButtonsShareARow();
    void fileTableHasItsHeaders();
    void rowsStayAsAddedAlthoughSortingIsEnabled();
    void progressBarFontIsNotStruckOut();
    void comboBoxesHaveTheirItems_data();
    void comboBoxesHaveTheirItems();
    void retranslatingPutsComboBoxesBackToTheFirstItem();
    void retranslatingBringsEveryTextBack();
    void focusGoesInTabOrder();
    void givenNameOfTheWindowIsKept();
};

void LayoutTest::formHasItsSizeNameAndIcon()
{
    Form form;
    QCOMPARE(form.window.objectName(), u"process"_s);
    QVERIFY(form.window.isEnabled());
    QCOMPARE(form.window.size(), QSize(552, 484));
    QCOMPARE(form.window.windowIcon().pixmap(32, 32).toImage(),
             picture(u"picturelog.ico"_s).pixmap(32, 32).toImage());
    QCOMPARE(form.window.windowTitle(), QString());
}

void LayoutTest::objectIsAsTheTableSays_data()
{
    QTest::addColumn<const LayoutRow *>("row");
    for (const LayoutRow &row : layoutTable)
        QTest::newRow(row.name) << &row;
}

void LayoutTest::objectIsAsTheTableSays()
{
    QFETCH(const LayoutRow *, row);
    Form form;
    QWidget *widget = form.find(row->name);
    QVERIFY(widget);
    QCOMPARE(widget->metaObject()->className(), row->className);
    QCOMPARE(widget->parent()->objectName(), QLatin1String(row->parent));
    if (row->geometry.isValid())
        QCOMPARE(widget->geometry(), row->geometry);
    // A semicolon that belongs to a value is written "\;".
    QStringList expected = QString::fromLatin1(row->settings)
                               .split(QRegularExpression(u"(?<!\\\\);"_s), Qt::SkipEmptyParts);
    expected.replaceInStrings(u"\\;"_s, u";"_s);
    QCOMPARE(settingsOf(widget, expected), expected);
}

void LayoutTest::thereIsNoObjectBesideTheTable()
{
    Form form;
    QStringList names;
    const auto widgets = form.window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        // Compound widgets of Qt have unnamed parts and parts named "qt_...".
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_"_s))
            names << widget->objectName();
    }
    QStringList expected;
    for (const LayoutRow &row : layoutTable)
        expected << QLatin1String(row.name);
    names.sort();
    expected.sort();
    QCOMPARE(names, expected);
}

void LayoutTest::pagesStandInTheirOrder()
{
    Form form;
    const QStackedWidget *pages = form.ui.stackedWidget_dialog;
    QStringList names;
    for (int index = 0; index < pages->count(); ++index)
        names << pages->widget(index)->objectName();
    QCOMPARE(names, QStringList({u"page"_s, u"page_2"_s, u"page_3"_s, u"page_4"_s}));
    QCOMPARE(pages->indexOf(form.ui.page), 0);
    QCOMPARE(pages->indexOf(form.ui.page_2), 1);
    QCOMPARE(pages->indexOf(form.ui.page_3), 2);
    QCOMPARE(pages->indexOf(form.ui.page_4), 3);
    QCOMPARE(pages->currentIndex(), 0);
}

void LayoutTest::fileButtonsShareARow()
{
    Form form;
    auto *row = qobject_cast<QHBoxLayout *>(form.ui.layoutWidget->layout());
    QVERIFY(row);
    QCOMPARE(row->objectName(), u"horizontalLayout"_s);
    QCOMPARE(row->spacing(), 6);
    QCOMPARE(row->contentsMargins(), QMargins());
    QStringList names;
    for (int i = 0; i < row->count(); ++i)
        names << row->itemAt(i)->widget()->objectName();
    QCOMPARE(names, QStringList({u"openfileButton"_s, u"removeButton"_s, u"removeallButton"_s}));
}

void LayoutTest::fileTableHasItsHeaders()
{
    Form form;
    const QTableWidget *table = form.ui.inputfiletableWidget;
    QCOMPARE(table->horizontalHeaderItem(0)->text(), u"Image File"_s);
    QCOMPARE(table->horizontalHeaderItem(1)->text(), u"File Size"_s);
    QCOMPARE(table->horizontalHeader()->defaultSectionSize(), 165);
    QCOMPARE(table->horizontalHeader()->minimumSectionSize(), 40);
    QVERIFY(table->horizontalHeader()->stretchLastSection());
    QCOMPARE(table->verticalHeader()->defaultSectionSize(), 18);
    QVERIFY(!table->verticalHeader()->stretchLastSection());
}

void LayoutTest::rowsStayAsAddedAlthoughSortingIsEnabled()
{
    Form form;
    QTableWidget *table = form.ui.inputfiletableWidget;
    QVERIFY(table->isSortingEnabled());
    QVERIFY(table->horizontalHeader()->sortIndicatorSection() < 0);
    QStringList texts;
    for (const char *text : {"b", "c", "a"}) {
        table->insertRow(table->rowCount());
        table->setItem(table->rowCount() - 1, 0, new QTableWidgetItem(QLatin1String(text)));
    }
    for (int row = 0; row < 3; ++row)
        texts << table->item(row, 0)->text();
    QCOMPARE(texts, QStringList({u"b"_s, u"c"_s, u"a"_s}));
}

void LayoutTest::progressBarFontIsNotStruckOut()
{
    Form form;
    QVERIFY(!form.ui.progressBar->font().strikeOut());
}

void LayoutTest::comboBoxesHaveTheirItems_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QStringList>("items");

    QTest::newRow("rotation") << "comboBox_rotate"
                              << QStringList{u"0"_s, u"90"_s, u"180"_s, u"270"_s};
    QTest::newRow("page size") << "comboBox_pagesize"
                               << QStringList{u""_s,
                                              u"A0 (841x1189 mm)"_s,
                                              u"A1 (594x841 mm)"_s,
                                              u"A2 (420x594 mm)"_s,
                                              u"A3 (297x420 mm)"_s,
                                              u"A4 (210x297 mm)"_s,
                                              u"A5 (148x210 mm)"_s,
                                              u"A6 (105x148 mm)"_s,
                                              u"A7 (74x105 mm)"_s,
                                              u"A8 (52x74 mm)"_s,
                                              u"A9 (37x52 mm)"_s,
                                              u"ArchA (229x305 mm)"_s,
                                              u"ArchB (305x457 mm)"_s,
                                              u"ArchC (457x610 mm)"_s,
                                              u"ArchD (610x914 mm)"_s,
                                              u"ArchE (914x1219 mm)"_s,
                                              u"Ledger (431.8x279. 4mm)"_s,
                                              u"Legal (215.9x355.6 mm)"_s,
                                              u"Letter (215.9x279.4 mm)"_s,
                                              u"Tabloid (279.4x431.8 mm)"_s};
    QTest::newRow("compression") << "comboBox_compresstype" << QStringList{u""_s,
                                                                           u"None"_s,
                                                                           u"Bzip"_s,
                                                                           u"CCITT Group 3"_s,
                                                                           u"CCITT Group 4"_s,
                                                                           u"JPEG"_s,
                                                                           u"JPEG2000"_s,
                                                                           u"Lossless"_s,
                                                                           u"Lempel-Ziv-Welch"_s,
                                                                           u"Run-length encoding"_s,
                                                                           u"Zip"_s};
}

void LayoutTest::comboBoxesHaveTheirItems()
{
    QFETCH(QString, box);
    Form form;
    QTEST(itemsOf(form.window.findChild<QComboBox *>(box)), "items");
}

void LayoutTest::retranslatingPutsComboBoxesBackToTheFirstItem()
{
    Form form;
    const QList<QComboBox *> boxes{form.ui.comboBox_rotate, form.ui.comboBox_pagesize,
                                   form.ui.comboBox_compresstype};
    for (QComboBox *box : boxes) {
        const QStringList items = itemsOf(box);
        box->setCurrentIndex(2);
        form.ui.retranslateUi(&form.window);
        QCOMPARE(box->currentIndex(), 0);
        QCOMPARE(itemsOf(box), items);
    }
}

void LayoutTest::retranslatingBringsEveryTextBack()
{
    Form form;
    const auto texts = [&form] {
        QStringList list;
        for (const LayoutRow &row : layoutTable) {
            // Only what the layout gives a text: not what the user types, not the side buttons.
            if (!QByteArray(row.className).endsWith("Edit") && row.parent != QByteArray("frame_8"))
                list << form.find(row.name)->property("text").toString();
        }
        return list;
    };
    const QStringList before = texts();
    for (auto *button : form.window.findChildren<QAbstractButton *>())
        button->setText(u"x"_s);
    for (auto *label : form.window.findChildren<QLabel *>()) {
        if (label->pixmap().isNull()) // a text would take its place
            label->setText(u"x"_s);
    }
    for (int column = 0; column < 2; ++column)
        form.ui.inputfiletableWidget->horizontalHeaderItem(column)->setText(u"x"_s);
    QVERIFY(texts() != before);
    form.ui.retranslateUi(&form.window);
    QCOMPARE(texts(), before);
    const QTableWidget *table = form.ui.inputfiletableWidget;
    QCOMPARE(table->horizontalHeaderItem(0)->text(), u"Image File"_s);
    QCOMPARE(table->horizontalHeaderItem(1)->text(), u"File Size"_s);
}

void LayoutTest::focusGoesInTabOrder()
{
    Form form;
    QStringList expected;
    for (const char *name : tabOrder)
        expected << QLatin1String(name);
    QStringList visited;
    QWidget *widget = form.ui.openfileButton;
    do {
        if (expected.contains(widget->objectName()))
            visited << widget->objectName();
        widget = widget->nextInFocusChain();
    } while (widget != form.ui.openfileButton);
    QCOMPARE(visited, expected);
}

void LayoutTest::givenNameOfTheWindowIsKept()
{
    QWidget window;
    window.setObjectName(u"own"_s);
    Ui_process().setupUi(&window);
    QCOMPARE(window.objectName(), u"own"_s);
}

QTEST_MAIN(LayoutTest)
#include "layout_test.moc"

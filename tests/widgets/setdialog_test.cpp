// The option dialog: its place, texts and buttons.

#include "setdialog.h"

#include "ui_setdialog.h"

#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

class SetDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void isAFixedWindow();
    void placesItsButtons_data();
    void placesItsButtons();
    void staysOpenWhenAButtonIsClicked_data();
    void staysOpenWhenAButtonIsClicked();
    void closesByEscape();
    void keepsANameItHas();
};

void SetDialogTest::isAFixedWindow()
{
    const setDialog dialog;

    QCOMPARE(dialog.objectName(), u"setDialog"_s);
    QCOMPARE(dialog.windowTitle(), u"Option"_s);
    QCOMPARE(dialog.size(), QSize(415, 346));
    QCOMPARE(dialog.minimumSize(), QSize(415, 346));
    QCOMPARE(dialog.maximumSize(), QSize(415, 346));
    const QIcon icon(u":/iconoption/icons/optionpic(4).ico"_s);
    QCOMPARE(dialog.windowIcon().pixmap(16).toImage(), icon.pixmap(16).toImage());
    QVERIFY(!icon.pixmap(16).isNull());
    QCOMPARE(dialog.findChildren<QWidget *>().size(), 3);
}

void SetDialogTest::placesItsButtons_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QRect>("place");

    QTest::newRow("OK is on the right") << "okButton"
                                        << "OK" << QRect(330, 310, 75, 23);
    QTest::newRow("Cancel is in the middle") << "cancelButton"
                                             << "Cancel" << QRect(253, 310, 75, 23);
    QTest::newRow("Reset All is on the left") << "resetallButton"
                                              << "Reset All" << QRect(176, 310, 75, 23);
}

void SetDialogTest::placesItsButtons()
{
    QFETCH(const QString, name);
    QFETCH(const QString, caption);
    QFETCH(const QRect, place);
    const setDialog dialog;

    const auto *button = dialog.findChild<QPushButton *>(name);

    QVERIFY(button);
    QCOMPARE(button->text(), caption);
    QCOMPARE(button->geometry(), place);
}

void SetDialogTest::staysOpenWhenAButtonIsClicked_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a click on OK") << "okButton";
    QTest::newRow("a click on Cancel") << "cancelButton";
    QTest::newRow("a click on Reset All") << "resetallButton";
}

void SetDialogTest::staysOpenWhenAButtonIsClicked()
{
    QFETCH(const QString, name);
    setDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto *button = dialog.findChild<QPushButton *>(name);
    bool clicked = false;
    connect(button, &QPushButton::clicked, this, [&clicked] { clicked = true; });

    QTest::mouseClick(button, Qt::LeftButton);

    QVERIFY(clicked);
    QVERIFY(dialog.isVisible());
}

void SetDialogTest::closesByEscape()
{
    setDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    int result = -1;
    connect(&dialog, &QDialog::finished, this, [&result](int code) { result = code; });

    QTest::keyClick(&dialog, Qt::Key_Escape);

    QVERIFY(!dialog.isVisible());
    QCOMPARE(result, int{QDialog::Rejected});
}

void SetDialogTest::keepsANameItHas()
{
    QDialog dialog;
    dialog.setObjectName("mine");

    Ui_setDialog().setupUi(&dialog);

    QCOMPARE(dialog.objectName(), u"mine"_s);
}

QTEST_MAIN(SetDialogTest)
#include "setdialog_test.moc"

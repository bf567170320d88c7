// The palette of the window, colour by colour.

#include "style.h"

#include <QApplication>
#include <QMetaEnum>
#include <QTest>

using namespace Qt::StringLiterals;

class ColoursTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void coloursAreThoseOfTheDesign_data();
    void coloursAreThoseOfTheDesign();
    void selectionWithoutTheKeyboardIsPale();
};

void ColoursTest::initTestCase()
{
    applyStyle(*qApp);
}

void ColoursTest::coloursAreThoseOfTheDesign_data()
{
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::addColumn<QString>("enabled");
    QTest::addColumn<QString>("disabled");
    const auto row = [](QPalette::ColorRole role, const QString &enabled,
                        const QString &disabled = {}) {
        QTest::newRow(QMetaEnum::fromType<QPalette::ColorRole>().valueToKey(role))
            << role << enabled << (disabled.isEmpty() ? enabled : disabled);
    };
    row(QPalette::WindowText, u"#000000"_s, u"#8c8c8c"_s);
    row(QPalette::Text, u"#000000"_s, u"#8c8c8c"_s);
    row(QPalette::ButtonText, u"#000000"_s, u"#8c8c8c"_s);
    row(QPalette::PlaceholderText, u"#6c6c6c"_s, u"#9a9a9a"_s);
    row(QPalette::BrightText, u"#ffffff"_s);
    row(QPalette::Window, u"#f3f6f5"_s);
    row(QPalette::AlternateBase, u"#f3f6f5"_s);
    row(QPalette::Base, u"#ffffff"_s, u"#f5f7f6"_s);
    row(QPalette::Button, u"#f0f2f1"_s);
    row(QPalette::Light, u"#ffffff"_s);
    row(QPalette::Midlight, u"#e3e8e6"_s);
    row(QPalette::Mid, u"#b8c0bd"_s, u"#c9cecc"_s);
    row(QPalette::Dark, u"#9aa5a1"_s, u"#b9c0bd"_s);
    row(QPalette::Shadow, u"#717a77"_s, u"#9aa5a1"_s);
    row(QPalette::Highlight, u"#0b7a6a"_s, u"#9fb5b0"_s);
    row(QPalette::HighlightedText, u"#ffffff"_s);
    row(QPalette::Link, u"#0000ff"_s);
    row(QPalette::LinkVisited, u"#551a8b"_s);
    row(QPalette::ToolTipBase, u"#fffbe6"_s);
    row(QPalette::ToolTipText, u"#000000"_s);
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    row(QPalette::Accent, u"#0b7a6a"_s, u"#9fb5b0"_s);
#endif
}

void ColoursTest::coloursAreThoseOfTheDesign()
{
    QFETCH(QPalette::ColorRole, role);
    const QPalette colours = QApplication::palette();
    QTEST(colours.color(QPalette::Active, role).name(), "enabled");
    QTEST(colours.color(QPalette::Disabled, role).name(), "disabled");
}

void ColoursTest::selectionWithoutTheKeyboardIsPale()
{
    const QPalette colours = QApplication::palette();
    QCOMPARE(colours.color(QPalette::Inactive, QPalette::Highlight).name(), u"#a9d0c7"_s);
    QCOMPARE(colours.color(QPalette::Inactive, QPalette::HighlightedText).name(), u"#000000"_s);
}

QTEST_MAIN(ColoursTest)
#include "colours_test.moc"

// The spin box for length units: what it shows and accepts.

#include "hexspinbox.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class HexSpinBoxTest : public QObject
{
    Q_OBJECT

private slots:
    void stepsThroughTheUnits_data();
    void stepsThroughTheUnits();
    void keepsAValueSetFromOutsideInItsRange_data();
    void keepsAValueSetFromOutsideInItsRange();
    void namesEachUnitAndNothingElse_data();
    void namesEachUnitAndNothingElse();
    void showsNoNameWhereTheRangeIsWidened();
    void stepsByTheKeyboard();
    void readsWhatIsTypedAsANumber();
    void doesNotReadAUnitsName();
};

void HexSpinBoxTest::stepsThroughTheUnits_data()
{
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("begins with points") << 0 << 0 << "pt";
    QTest::newRow("one step up is centimetres") << 1 << 1 << "cm";
    QTest::newRow("two steps up are inches") << 2 << 2 << "in";
    QTest::newRow("three steps up wrap to points") << 3 << 0 << "pt";
    QTest::newRow("one step down wraps to inches") << -1 << 2 << "in";
    QTest::newRow("two steps down are centimetres") << -2 << 1 << "cm";
    QTest::newRow("three steps down are points again") << -3 << 0 << "pt";
}

void HexSpinBoxTest::stepsThroughTheUnits()
{
    QFETCH(const int, steps);
    QFETCH(const int, value);
    QFETCH(const QString, text);
    HexSpinBox box;

    for (int step = 0; step < qAbs(steps); ++step)
        box.stepBy(steps > 0 ? 1 : -1);

    QCOMPARE(box.value(), value);
    QCOMPARE(box.text(), text);
}

void HexSpinBoxTest::keepsAValueSetFromOutsideInItsRange_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("just above the range wraps to the first unit") << 3 << 0 << "pt";
    QTest::newRow("far above the range wraps to the first unit") << 1000 << 0 << "pt";
    QTest::newRow("just below the range wraps to the last unit") << -1 << 2 << "in";
    QTest::newRow("far below the range wraps to the last unit") << -1000 << 2 << "in";
    QTest::newRow("inside the range stays") << 1 << 1 << "cm";
}

void HexSpinBoxTest::keepsAValueSetFromOutsideInItsRange()
{
    QFETCH(const int, given);
    QFETCH(const int, value);
    QFETCH(const QString, text);
    HexSpinBox box;

    box.setValue(given);

    QCOMPARE(box.value(), value);
    QCOMPARE(box.text(), text);
}

void HexSpinBoxTest::namesEachUnitAndNothingElse_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("0 is points") << 0 << "pt";
    QTest::newRow("1 is centimetres") << 1 << "cm";
    QTest::newRow("2 is inches") << 2 << "in";
    QTest::newRow("3 has no name") << 3 << "";
    QTest::newRow("-1 has no name") << -1 << "";
    QTest::newRow("the largest number has no name") << std::numeric_limits<int>::max() << "";
}

void HexSpinBoxTest::namesEachUnitAndNothingElse()
{
    QFETCH(const int, value);
    QFETCH(const QString, text);

    QCOMPARE(HexSpinBox().textFromValue(value), text);
}

void HexSpinBoxTest::showsNoNameWhereTheRangeIsWidened()
{
    HexSpinBox box;
    box.setRange(0, 5);

    box.setValue(4);

    QCOMPARE(box.value(), 4);
    QCOMPARE(box.text(), QString());
}

void HexSpinBoxTest::stepsByTheKeyboard()
{
    HexSpinBox box;

    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.text(), u"in"_s);
    QTest::keyClick(&box, Qt::Key_Up);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.text(), u"cm"_s);
}

void HexSpinBoxTest::readsWhatIsTypedAsANumber()
{
    HexSpinBox box;

    box.selectAll();
    QTest::keyClicks(&box, u"2"_s);
    QTest::keyClick(&box, Qt::Key_Return);

    QCOMPARE(box.value(), 2);
    QCOMPARE(box.text(), u"in"_s);
}

void HexSpinBoxTest::doesNotReadAUnitsName()
{
    HexSpinBox box;

    box.selectAll();
    QTest::keyClicks(&box, u"cm"_s);
    QTest::keyClick(&box, Qt::Key_Return);

    QCOMPARE(box.value(), 0);
    QCOMPARE(box.text(), u"pt"_s);
}

QTEST_MAIN(HexSpinBoxTest)
#include "hexspinbox_test.moc"

// The round picture button: what it paints in each state; otherwise it is a push button.

#include "mypushbutton.h"

#include <QEnterEvent>
#include <QImage>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb nothing = 0;
constexpr QRgb iconColour = 0xFFC02040;
constexpr QRgb fileColour = 0xFF20A0E0;

QIcon icon()
{
    QPixmap pixmap(64, 64);
    pixmap.fill(QColor(iconColour));
    QIcon result(pixmap);
    pixmap.fill(Qt::yellow); // of a checked button, which this one never shows
    result.addPixmap(pixmap, QIcon::Normal, QIcon::On);
    return result;
}

void send(mypushbutton &button, QEvent::Type type)
{
    const QPointF inside(5, 5);
    const bool isPress = type == QEvent::MouseButtonPress;
    if (isPress || type == QEvent::MouseButtonRelease) {
        QMouseEvent event(type, inside, inside, Qt::LeftButton,
                          isPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&button, &event);
    } else if (type == QEvent::Enter) {
        QEnterEvent event(inside, inside, inside);
        QCoreApplication::sendEvent(&button, &event);
    } else {
        QEvent event(type);
        QCoreApplication::sendEvent(&button, &event);
    }
}

/// Only what the button itself paints, on a transparent ground.
QImage paint(mypushbutton &button)
{
    QImage image(button.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    button.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// One letter for each pixel: '.' for nothing, '#' for `colour`, '!' for anything else.
QStringList letters(const QImage &image, QRgb colour)
{
    QStringList lines;
    for (int y = 0; y < image.height(); ++y) {
        QString line;
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            line += pixel == nothing ? u'.' : pixel == colour ? u'#' : u'!';
        }
        lines.append(line);
    }
    return lines;
}

/// `target` as far as it lies in the circle; '?' on the circle's smooth edge.
QStringList discLetters(QSize size, QRect target)
{
    const double radius = (size.width() - 2) / 2.0;
    QStringList lines;
    for (int y = 0; y < size.height(); ++y) {
        QString line;
        for (int x = 0; x < size.width(); ++x) {
            const double outside = std::hypot(x + 0.5 - radius, y + 0.5 - radius) - radius;
            const bool onEdge = std::abs(outside) < 1.0;
            line += !target.contains(x, y) ? u'.' : onEdge ? u'?' : outside < 0 ? u'#' : u'.';
        }
        lines.append(line);
    }
    return lines;
}

/// Takes no account of the pixels that `expected` leaves open.
QStringList withOpenPixels(QStringList actual, const QStringList &expected)
{
    for (qsizetype y = 0; y < expected.size(); ++y)
        for (qsizetype x = 0; x < expected[y].size(); ++x)
            if (expected[y][x] == u'?')
                actual[y][x] = u'?';
    return actual;
}

/// Whether the button was down, at each of its paintings.
class PaintLog : public QObject
{
public:
    QList<bool> down;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            down << qobject_cast<QAbstractButton *>(watched)->isDown();
        return false;
    }
};

} // namespace

using Events = QList<QEvent::Type>;

class MyPushButtonTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void centresTheIcon_data();
    void centresTheIcon();
    void paintsItsPictureInACircle_data();
    void paintsItsPictureInACircle();
    void paintsNothingWithoutAPicture_data();
    void paintsNothingWithoutAPicture();
    void paintsWhatTheFileHoldsNow();
    void edgeOfTheCircleIsSmooth();
    void releaseOutsideShowsTheIconAgain();
    void repaintsAtOnce_data();
    void repaintsAtOnce();
    void isAPushButtonInAllElse();
    void takesWhatAPushButtonIsMadeFrom();

private:
    QTemporaryDir folder;
    QString imagePath;
};

void MyPushButtonTest::initTestCase()
{
    QVERIFY(folder.isValid());
    // The name says another format than the content.
    imagePath = folder.filePath(u"pressed.jpg"_s);
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(fileColour);
    QVERIFY(image.save(imagePath, "PNG"));
    image.save(folder.filePath(u"named.png"_s), "PNG");
}

void MyPushButtonTest::centresTheIcon_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("place");

    QTest::newRow("an even icon in an odd rectangle")
        << QRect(0, 0, 75, 23) << QSize(16, 16) << QRect(29, 3, 16, 16);
    QTest::newRow("each half is truncated on its own")
        << QRect(0, 0, 74, 22) << QSize(15, 15) << QRect(30, 4, 15, 15);
    QTest::newRow("an odd icon in an odd rectangle")
        << QRect(0, 0, 75, 23) << QSize(15, 15) << QRect(30, 4, 15, 15);
    QTest::newRow("the rectangle's place does not count")
        << QRect(300, -40, 40, 20) << QSize(10, 10) << QRect(15, 5, 10, 10);
    QTest::newRow("a larger icon begins outside")
        << QRect(0, 0, 20, 10) << QSize(31, 31) << QRect(-5, -10, 31, 31);
    QTest::newRow("no size at all") << QRect(0, 0, 20, 10) << QSize(0, 0) << QRect(10, 5, 0, 0);
}

void MyPushButtonTest::centresTheIcon()
{
    QFETCH(const QRect, rect);
    QFETCH(const QSize, size);
    QFETCH(const QRect, place);

    QCOMPARE(mypushbutton().calculateIconPosition(rect, size), place);
}

void MyPushButtonTest::paintsItsPictureInACircle_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<QSize>("iconSize");
    QTest::addColumn<Events>("events");
    QTest::addColumn<QRgb>("colour");
    QTest::addColumn<QRect>("target");
    const QRect square(0, 0, 40, 40);
    const QSize small(16, 16);
    const QRect middle(12, 12, 16, 16);
    const Events press{QEvent::MouseButtonPress};

    QTest::newRow("idle, the icon") << square << small << Events() << iconColour << middle;
    QTest::newRow("hovered, the icon")
        << square << small << Events{QEvent::Enter} << iconColour << middle;
    QTest::newRow("pressed, the file") << square << small << press << fileColour << middle;
    QTest::newRow("hovered and pressed, the file")
        << square << small << Events{QEvent::Enter, QEvent::MouseButtonPress} << fileColour
        << middle;
    QTest::newRow("pressed and left, still the file")
        << square << small << Events{QEvent::MouseButtonPress, QEvent::Leave} << fileColour
        << middle;
    QTest::newRow("released, the icon again")
        << square << small << Events{QEvent::MouseButtonPress, QEvent::MouseButtonRelease}
        << iconColour << middle;
    QTest::newRow("disabled, the icon in its normal colour")
        << square << small << Events{QEvent::EnabledChange} << iconColour << middle;
    QTest::newRow("elsewhere in its parent, the same")
        << square.translated(70, 90) << small << Events() << iconColour << middle;
    QTest::newRow("as large as the button, a circle")
        << square << QSize(40, 40) << Events() << iconColour << square;
    QTest::newRow("wider than high, the circle goes on below")
        << QRect(0, 0, 60, 30) << QSize(60, 30) << Events() << iconColour << QRect(0, 0, 60, 30);
    QTest::newRow("wider than high and pressed, the file goes on below")
        << QRect(0, 0, 60, 30) << QSize(60, 30) << press << fileColour << QRect(0, 0, 60, 30);
    QTest::newRow("higher than wide, the circle at the top")
        << QRect(0, 0, 30, 60) << QSize(30, 60) << Events() << iconColour << QRect(0, 0, 30, 60);
    QTest::newRow("larger than the button, from outside its corner")
        << square << QSize(60, 60) << Events() << iconColour << QRect(-10, -10, 60, 60);
}

void MyPushButtonTest::paintsItsPictureInACircle()
{
    QFETCH(const QRect, geometry);
    QFETCH(const QSize, iconSize);
    QFETCH(const Events, events);
    QFETCH(const QRgb, colour);
    QFETCH(const QRect, target);
    QWidget parent;
    mypushbutton button(icon(), imagePath, &parent);
    button.setGeometry(geometry);
    button.setIconSize(iconSize);

    for (const QEvent::Type type : events) {
        if (type == QEvent::EnabledChange)
            button.setEnabled(false);
        else
            send(button, type);
    }

    const QStringList expected = discLetters(geometry.size(), target);
    QCOMPARE(withOpenPixels(letters(paint(button), colour), expected), expected);
}

void MyPushButtonTest::paintsNothingWithoutAPicture_data()
{
    QTest::addColumn<bool>("hasIcon");
    QTest::addColumn<bool>("isPressed");
    QTest::addColumn<QString>("text");

    QTest::newRow("pressed with an ordinary caption") << true << true << "Convert";
    QTest::newRow("pressed without a caption") << true << true << "";
    QTest::newRow("no icon and an ordinary caption") << false << false << "Convert";
    QTest::newRow("no icon and nothing else") << false << false << "";
    QTest::newRow("a folder as the caption") << false << false << folder.path();
    QTest::newRow("a file's name without its ending")
        << false << false << folder.filePath(u"named"_s);
}

void MyPushButtonTest::paintsNothingWithoutAPicture()
{
    QFETCH(const bool, hasIcon);
    QFETCH(const bool, isPressed);
    QFETCH(const QString, text);
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    mypushbutton button(hasIcon ? icon() : QIcon(), text);
    button.resize(40, 40);
    if (isPressed)
        send(button, QEvent::MouseButtonPress);

    QCOMPARE(letters(paint(button), iconColour), discLetters(QSize(40, 40), QRect()));
}

void MyPushButtonTest::paintsWhatTheFileHoldsNow()
{
    const QString path = folder.filePath(u"changing.png"_s);
    mypushbutton button(path);
    button.resize(40, 40);
    for (const QRgb colour : {fileColour, iconColour}) {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(colour);
        QVERIFY(image.save(path));
        QCOMPARE(paint(button).pixel(20, 20), colour);
    }
}

void MyPushButtonTest::edgeOfTheCircleIsSmooth()
{
    mypushbutton button(icon(), QString());
    button.resize(40, 40);
    button.setIconSize({40, 40});
    const QImage image = paint(button);
    int halfCovered = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            halfCovered += qAlpha(image.pixel(x, y)) > 0 && qAlpha(image.pixel(x, y)) < 255;
    }
    QVERIFY2(halfCovered > 20, qPrintable(QString::number(halfCovered)));
}

void MyPushButtonTest::releaseOutsideShowsTheIconAgain()
{
    mypushbutton button(icon(), imagePath);
    button.resize(40, 40);
    int clicks = 0;
    connect(&button, &QPushButton::clicked, this, [&clicks] { ++clicks; });
    send(button, QEvent::MouseButtonPress);
    QCOMPARE(paint(button).pixel(20, 20), fileColour);
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, {400, 400});
    QCOMPARE(paint(button).pixel(20, 20), iconColour);
    QCOMPARE(clicks, 0);
}

void MyPushButtonTest::repaintsAtOnce_data()
{
    QTest::addColumn<QEvent::Type>("type");

    QTest::newRow("when pressed") << QEvent::MouseButtonPress;
    QTest::newRow("when released") << QEvent::MouseButtonRelease;
    QTest::newRow("when the mouse enters") << QEvent::Enter;
    QTest::newRow("when the mouse leaves") << QEvent::Leave;
}

void MyPushButtonTest::repaintsAtOnce()
{
    QFETCH(const QEvent::Type, type);
    mypushbutton button(icon(), QString());
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    const bool isRelease = type == QEvent::MouseButtonRelease;
    if (isRelease)
        send(button, QEvent::MouseButtonPress);
    PaintLog paints;
    button.installEventFilter(&paints);

    send(button, type);

    // Qt paints a pressed button by itself, but only after it is down.
    QVERIFY(!paints.down.isEmpty());
    QCOMPARE(paints.down.first(), isRelease);
}

void MyPushButtonTest::isAPushButtonInAllElse()
{
    mypushbutton button(u"&Convert"_s);
    button.setCheckable(true);
    button.resize(40, 40);
    int clicks = 0;
    connect(&button, &QPushButton::clicked, this, [&clicks] { ++clicks; });

    send(button, QEvent::MouseButtonPress);
    QVERIFY(button.isDown());
    send(button, QEvent::MouseButtonRelease);

    QVERIFY(!button.isDown());
    QVERIFY(button.isChecked());
    QCOMPARE(clicks, 1);
    QCOMPARE(button.shortcut(), QKeySequence(Qt::ALT | Qt::Key_C));
}

void MyPushButtonTest::takesWhatAPushButtonIsMadeFrom()
{
    QWidget parent;
    const mypushbutton plain(&parent);
    const mypushbutton captioned(u"Convert"_s, &parent);
    const mypushbutton pictured(icon(), u"Convert"_s, &parent);

    QCOMPARE(plain.text(), QString());
    QVERIFY(plain.icon().isNull());
    QCOMPARE(captioned.text(), u"Convert"_s);
    QVERIFY(captioned.icon().isNull());
    QCOMPARE(pictured.text(), u"Convert"_s);
    QVERIFY(!pictured.icon().isNull());
    QCOMPARE(parent.children().size(), 3);
}

QTEST_MAIN(MyPushButtonTest)
#include "mypushbutton_test.moc"

#include "pdfpictures.h"

#include <QColor>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QPainter>
#include <QProcess>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60'000) || process.exitCode() != 0)
        qFatal("%s failed", qPrintable(program));
    return process.readAllStandardOutput();
}

double lightnessOf(const QImage &image, const QRect &place)
{
    double sum = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            sum += qGray(image.pixel(x, y));
    }
    return sum / (place.width() * place.height());
}

} // namespace

QStringList imageFilters(const QString &path)
{
    const QByteArray json = outputOf(u"qpdf"_s, {u"--json=1"_s, u"--json-key=objects"_s, path});
    QStringList filters;
    const QJsonObject objects = QJsonDocument::fromJson(json)[u"objects"_s].toObject();
    for (const auto &object : objects) {
        if (object[u"/Subtype"_s] != u"/Image"_s)
            continue;
        const QJsonValue filter = object[u"/Filter"_s];
        filters << filter.toString(filter[0].toString()); // a name, or an array of one
    }
    return filters;
}

QImage plainImage(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    image.setDotsPerMeterX(2835); // 72 per inch
    image.setDotsPerMeterY(2835);
    return image;
}

QImage markedImage()
{
    QImage image = plainImage({40, 30});
    QPainter(&image).fillRect(0, 0, 20, 15, Qt::white);
    return image;
}

QString lightestQuarter(const QImage &image)
{
    const QSize quarter = image.size() / 2;
    QMap<double, QString> quarters;
    for (const auto &[x, y, name] :
         {std::tuple(0, 0, u"upper left"_s), std::tuple(1, 0, u"upper right"_s),
          std::tuple(0, 1, u"lower left"_s), std::tuple(1, 1, u"lower right"_s)}) {
        const QPoint corner(x * (image.width() - quarter.width()),
                            y * (image.height() - quarter.height()));
        quarters[lightnessOf(image, QRect(corner, quarter))] = name;
    }
    return quarters.last();
}

int colouredPixels(const QImage &image)
{
    int coloured = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            coloured += pixel.saturation() > 20 || (pixel.value() > 20 && pixel.value() < 235);
        }
    }
    return coloured * 100 / (image.width() * image.height());
}

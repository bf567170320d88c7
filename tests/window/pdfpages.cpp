#include "pdfpages.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <memory>

#include <poppler-qt6.h>

using namespace Qt::StringLiterals;

QImage drawnPage(const QString &path, int number, int dotsPerInch)
{
    const std::unique_ptr<Poppler::Document> document = Poppler::Document::load(path);
    const std::unique_ptr<Poppler::Page> page(document ? document->page(number) : nullptr);
    return page ? page->renderToImage(dotsPerInch, dotsPerInch) : QImage();
}

QString visibleDifference(const QImage &shown, const QImage &expected)
{
    constexpr int side = 8;
    constexpr int tolerance = 24; // of 255
    if (shown.isNull() || expected.isNull())
        return u"no picture"_s;
    const double shownShape = double(shown.width()) / shown.height();
    const double expectedShape = double(expected.width()) / expected.height();
    // A pixel more or less comes from rounding.
    if (std::abs(shownShape / expectedShape - 1) >
        1.5 / std::min({shown.width(), shown.height(), expected.width(), expected.height()}))
        return u"%1x%2 instead of %3x%4"_s.arg(shown.width())
            .arg(shown.height())
            .arg(expected.width())
            .arg(expected.height());
    // By way of the same size, so that both are made small alike.
    const auto small = [&shown](const QImage &image) {
        return image.convertToFormat(QImage::Format_RGB32)
            .scaled(shown.size())
            .scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage left = small(shown);
    const QImage right = small(expected);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const QColor is = left.pixelColor(x, y);
            const QColor should = right.pixelColor(x, y);
            if (std::max({std::abs(is.red() - should.red()), std::abs(is.green() - should.green()),
                          std::abs(is.blue() - should.blue())}) > tolerance)
                return u"%1 instead of %2 at %3,%4 of %5"_s.arg(is.name(), should.name())
                    .arg(x)
                    .arg(y)
                    .arg(side);
        }
    }
    return {};
}

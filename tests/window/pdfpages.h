#pragma once

#include <QImage>
#include <QString>

/// Dots per inch for pages of few points: poppler 22.12 draws images up to a pixel larger than they
/// are.
constexpr int finelyDrawn = 288;

/// Page `number`, from 0, as poppler draws it; null where there is none.
QImage drawnPage(const QString &path, int number = 0, int dotsPerInch = 72);

/// How two pictures differ visibly: in shape, or in colour at a place of both made small; "" if
/// they do not. Blurring by JPEG and by scaling does not count.
QString visibleDifference(const QImage &shown, const QImage &expected);

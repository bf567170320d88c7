#include "pagesizes.h"

#include <QFile>

int main()
{
    const bool pictures = QFile::exists(QStringLiteral(":/iconoption/icons/whle.png"));
    return pictures && resizeOption(5) == QLatin1String(" -resize 595x842") ? 0 : 1;
}

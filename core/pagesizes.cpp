#include "pagesizes.h"

QString resizeOption(int index)
{
    if (index < 1 || index >= static_cast<int>(pageSizes.size()))
        return {};
    const PageSize &size = pageSizes[static_cast<std::size_t>(index)];
    return QStringLiteral(" -resize %1x%2").arg(size.width).arg(size.height);
}

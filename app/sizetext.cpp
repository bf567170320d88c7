#include "sizetext.h"

QString sizeText(qint64 bytes)
{
    const auto size = static_cast<qint32>(bytes);
    if (size <= 0)
        return {};
    // The switch point is a power of two and the divisors are powers of ten on purpose.
    if (size < 1024 * 1024 + 1)
        return QString::asprintf("%14.3fKB", size / 1000.0);
    return QString::asprintf("%14.3fMB", size / 1000000.0);
}

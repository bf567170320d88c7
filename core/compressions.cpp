#include "compressions.h"

QString compressOption(int index)
{
    if (index < 1 || index >= static_cast<int>(compressions.size()))
        return {};
    const char *word = compressions[static_cast<std::size_t>(index)].word;
    return QStringLiteral(" -compress ") + QLatin1String(word);
}

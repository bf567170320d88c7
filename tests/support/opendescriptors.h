#pragma once

#include <QDir>
#include <QStringList>

/// The open file descriptors of this process, by number. With QDir::System alone regular files and
/// folders would be missing (Qt 6.4).
inline QStringList openDescriptors()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

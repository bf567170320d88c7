#pragma once

#include <QSettings>
#include <QString>

/// A folder remembered between runs in setting.ini in the current directory. Each object
/// opens the file, and write() has written it when it returns; a failed write is not reported.
class RememberedFolder
{
public:
    /// `key` is the entry's name in the file, for example "dir/input".
    explicit RememberedFolder(const QString &key);

    /// The folder as last written, "." when there is none.
    QString read() const;
    void write(const QString &folder);

private:
    QSettings m_settings;
    QString m_key;
};

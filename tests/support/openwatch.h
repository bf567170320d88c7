#pragma once

#include <QFile>
#include <QString>

#include <sys/inotify.h>
#include <unistd.h>

/// Notices that a file is opened, by anybody.
class OpenWatch
{
public:
    explicit OpenWatch(const QString &path)
        : m_watch(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        if (inotify_add_watch(m_watch, QFile::encodeName(path).constData(), IN_OPEN) < 0)
            qFatal("cannot watch the file");
    }
    ~OpenWatch() { close(m_watch); }
    Q_DISABLE_COPY_MOVE(OpenWatch)

    /// Whether it was opened since the last question.
    bool wasOpened() const
    {
        char events[4096];
        return read(m_watch, events, sizeof events) > 0;
    }

private:
    int m_watch;
};

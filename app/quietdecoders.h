#pragma once

#include <QtGlobal>

#include <cstdio>

/// As long as it lives, what libraries print on `stderr` in this thread is dropped: libpng and
/// libtiff describe each fault of an image there. Qt's messages and other threads' get through.
/// One at a time.
class QuietDecoders
{
public:
    QuietDecoders();
    ~QuietDecoders();
    Q_DISABLE_COPY_MOVE(QuietDecoders)

private:
    std::FILE *m_usualStream;
    QtMessageHandler m_usualHandler;
};

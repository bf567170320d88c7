#pragma once

#include <QtGlobal>

#include <cstdio>

/// While it lives, what libraries print on `stderr` in this thread is dropped: libpng and libtiff
/// report each fault of an image there. Messages of Qt and of other threads still appear. Only one
/// may exist at a time.
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

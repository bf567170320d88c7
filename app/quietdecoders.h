#pragma once

#include <QtGlobal>

#include <cstdio>

/// While it lives, what libraries print on `stderr` in this thread is dropped, and what Qt reports
/// here in a category: libpng, libtiff and Qt's readers report each fault of an image. Qt's other
/// messages and those of other threads still appear. Only one may exist at a time.
class QuietDecoders
{
public:
    QuietDecoders();
    ~QuietDecoders();
    Q_DISABLE_COPY_MOVE(QuietDecoders)

private:
    std::FILE *m_usualStream;
};

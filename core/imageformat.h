#pragma once

#include <QByteArray>

class QIODevice;

/// Qt's name of the format that the first bytes of `file` belong to; empty for any that the image
/// tool does not read, whatever plug-ins Qt has. Moves nothing.
QByteArray imageFormat(QIODevice &file);

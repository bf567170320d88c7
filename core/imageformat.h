#pragma once

#include <QByteArray>

class QIODevice;

/// Qt's name of the format that the first bytes of `file` show; empty for any that the image tool
/// does not read, even if Qt has a plug-in for it. Does not move the position.
QByteArray imageFormat(QIODevice &file);

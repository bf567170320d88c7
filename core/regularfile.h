#pragma once

class QFile;
class QString;

/// Opens `path` for reading into `file` if it is a regular file (a link to one is); false for
/// anything else. Never waits, as opening a FIFO or a device could.
bool openRegularFile(QFile &file, const QString &path);

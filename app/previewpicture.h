#pragma once

#include <QPixmap>
#include <QSize>

class QString;
class QWidget;

/// Bounds what Qt decodes to a quarter of the machine's memory, so that a picture that
/// unpacks to more is an unreadable file and not the end of the program.
void limitDecodedPictures();

/// The image in the regular file at `path`, its format told by its content, as the preview may
/// show it: at most 2 GiB at 32 bits a pixel. A null pixmap when there is none. Read afresh at each
/// call: Qt's own loader answers from a cache in which a file rewritten within the same
/// second keeps its old picture.
QPixmap readPicture(const QString &path);

/// `picture` scaled smoothly to `size` (device-independent pixels) as `mode` says, with as many
/// device pixels as a screen of `ratio` device pixels per pixel shows.
QPixmap scaledPicture(const QPixmap &picture, QSize size, Qt::AspectRatioMode mode, qreal ratio);

/// Makes `picture` the background of `frame`, whose shape becomes that of the opaque pixels. A null
/// picture blanks the frame. The frame's size stays.
void showPicture(QWidget &frame, const QPixmap &picture);

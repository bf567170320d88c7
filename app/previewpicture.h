#pragma once

#include "regularfile.h"

#include <QPixmap>
#include <QSize>
#include <QString>

#include <optional>

class QWidget;

/// Bounds what Qt decodes to a quarter of the machine's memory, so that a picture that
/// unpacks to more is an unreadable file and not the end of the program.
void limitDecodedPictures();

struct Preview
{
    QSize size; ///< of the frame, in device-independent pixels
    QPixmap picture;
};

/// The preview of the current row's file.
class PreviewPicture
{
public:
    /// The image in the regular file at `path`, upright, as a screen of `ratio` device pixels per
    /// pixel shows it; nothing when there is none. Its format is told by its content. Decoded when
    /// the file may have changed since the last call, else what that call returned. Never from Qt's
    /// cache, in which a file rewritten within a second keeps its old picture.
    std::optional<Preview> of(const QString &path, qreal ratio);

private:
    struct Source
    {
        QString path;
        qreal ratio;
        FileState state;

        bool operator==(const Source &) const = default;
    };

    std::optional<Source> m_source; // of m_preview, when that may be shown again
    std::optional<Preview> m_preview;
};

/// `picture` scaled smoothly to exactly `size` (device-independent pixels), with as many device
/// pixels as a screen of `ratio` device pixels per pixel shows.
QPixmap scaledPicture(const QImage &picture, QSize size, qreal ratio);

/// Makes `picture` the background of `frame`, whose shape becomes that of the opaque pixels. A null
/// picture blanks the frame. The frame's size stays.
void showPicture(QWidget &frame, const QPixmap &picture);

#pragma once

#include "regularfile.h"

#include <QPixmap>
#include <QSize>
#include <QString>

#include <optional>

class QWidget;

/// Limits what Qt decodes to a quarter of the machine's memory: a picture that unpacks to more
/// counts as unreadable.
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
    /// pixel shows it; nothing if there is none. The content decides the format. Decodes only when
    /// the file may have changed since the last call. Bypasses Qt's cache, in which a file
    /// rewritten within a second keeps its old picture.
    std::optional<Preview> of(const QString &path, qreal ratio);

private:
    struct Source
    {
        QString path;
        qreal ratio;
        FileState state;

        bool operator==(const Source &) const = default;
    };

    std::optional<Source> m_source; // of m_preview, if that may be shown again
    std::optional<Preview> m_preview;
};

/// `picture` scaled smoothly to exactly `size` (device-independent pixels), with as many device
/// pixels as a screen of `ratio` device pixels per pixel shows.
QPixmap scaledPicture(const QImage &picture, QSize size, qreal ratio);

/// Makes `picture` the background of `frame`, whose shape becomes that of the opaque pixels. A null
/// picture blanks the frame. The frame's size stays.
void showPicture(QWidget &frame, const QPixmap &picture);

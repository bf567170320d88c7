#include "pictures.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr int headerSize = 6;
constexpr int entrySize = 16;
constexpr int largestListed = 128; // pixels

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int area(QSize size)
{
    return size.width() * size.height();
}

int sideOf(char byte)
{
    return byte == 0 ? 256 : static_cast<uchar>(byte);
}

/// Shows, of an icon file's entries, the smallest that covers the size asked for, else the largest.
class IconFileEngine : public QIconEngine
{
public:
    explicit IconFileEngine(const QString &path)
        : m_file(path)
    {
    }

    QIconEngine *clone() const override { return new IconFileEngine(*this); }
    QString key() const override { return QStringLiteral("IconFileEngine"); }

    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        readDirectory();
        // A window's icon is handed to the display in all of these before the window is shown, and
        // no window manager shows more.
        QList<QSize> listed = m_sizes;
        listed.removeIf([](QSize size) { return size.width() > largestListed; });
        return listed;
    }

    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return best(size).actualSize(size, mode, state);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return best(size).pixmap(size, 1.0, mode, state);
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state));
    }

private:
    void readDirectory()
    {
        if (!m_content.isEmpty())
            return;
        m_content = contentOf(m_file);
        if (m_content.size() < headerSize)
            return;
        const int count = qFromLittleEndian<quint16>(m_content.constData() + 4);
        for (int entry = 0; entry < count && entryAt(entry + 1) <= m_content.size(); ++entry) {
            const char *fields = m_content.constData() + entryAt(entry);
            m_sizes << QSize(sideOf(fields[0]), sideOf(fields[1]));
        }
    }

    static qsizetype entryAt(qsizetype number) { return headerSize + number * entrySize; }

    QIcon best(QSize size)
    {
        readDirectory();
        const auto suits = [wanted = area(size)](QSize one, QSize other) {
            const bool covers = area(one) >= wanted;
            if (covers != (area(other) >= wanted))
                return covers;
            return covers ? area(one) < area(other) : area(one) > area(other);
        };
        const auto found = std::min_element(m_sizes.cbegin(), m_sizes.cend(), suits);
        return found == m_sizes.cend() ? QIcon() : entryIcon(found - m_sizes.cbegin());
    }

    // Qt's own engine then shrinks the picture and greys it when disabled.
    QIcon entryIcon(qsizetype entry)
    {
        QIcon &icon = m_decoded[entry];
        if (icon.isNull()) {
            const char *fields = m_content.constData() + entryAt(entry);
            const auto length = qFromLittleEndian<quint32>(fields + 8);
            const auto offset = qFromLittleEndian<quint32>(fields + 12);
            icon.addPixmap(QPixmap::fromImage(pngImage(m_content.mid(offset, length))));
        }
        return icon;
    }

    QString m_file;
    QByteArray m_content;
    QList<QSize> m_sizes;
    QHash<qsizetype, QIcon> m_decoded;
};

} // namespace

QIcon iconFromFile(const QString &path)
{
    return QIcon(new IconFileEngine(path));
}

void addPng(QIcon &icon, const QString &path, QIcon::Mode mode)
{
    icon.addPixmap(QPixmap::fromImage(pngImage(contentOf(path))), mode);
    if (qGuiApp->devicePixelRatio() <= 1.0)
        return;
    QString twinPath = path;
    twinPath.insert(path.lastIndexOf(QLatin1Char('.')), QStringLiteral("@2x"));
    QImage twin = pngImage(contentOf(twinPath));
    twin.setDevicePixelRatio(2.0);
    icon.addPixmap(QPixmap::fromImage(twin), mode);
}

QImage pngImage(QByteArray content)
{
    QBuffer buffer(&content);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

QPixmap readScaled(const QString &path, QSize size, qreal ratio)
{
    QImageReader reader(path);
    reader.setScaledSize((QSizeF(size) * ratio).toSize());
    QPixmap scaled = QPixmap::fromImageReader(&reader);
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

QPixmap crispPixmap(const QString &path, QSize size, qreal ratio)
{
    const QString key =
        QStringLiteral("%1 %2x%3@%4").arg(path).arg(size.width()).arg(size.height()).arg(ratio);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        QIcon icon;
        addPng(icon, path);
        picture = icon.pixmap(size, ratio);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

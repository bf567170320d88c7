#pragma once

#include <QImageIOHandler>

/// Reads one PCX picture from its device; it writes none. A file that is cut off, contradicts
/// itself or needs more memory than the image reader allows is not read, and no partial picture is
/// given out.
class PcxHandler : public QImageIOHandler
{
public:
    /// True if `device` stands at a valid PCX header. Its position does not change.
    static bool canRead(QIODevice *device);

    bool canRead() const override;
    bool read(QImage *image) override;
    QVariant option(ImageOption option) const override;
    bool supportsOption(ImageOption option) const override;
};

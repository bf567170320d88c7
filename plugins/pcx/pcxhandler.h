#pragma once

#include <QImageIOHandler>

/// Reads one PCX image from its device; does not write. A file that is cut off, inconsistent or
/// needs more memory than the image reader allows is refused; there are no partial images.
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

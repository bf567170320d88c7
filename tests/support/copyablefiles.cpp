#include "copyablefiles.h"

#include "imagefiles.h"

using namespace imagefiles;

namespace {

struct Jfif
{
    const char *name;
    int unit;
    quint32 x;
    quint32 y;
};

constexpr Jfif jfifDensities[] = {
    {"72 per inch", 1, 72, 72},
    {"300 per inch", 1, 300, 300},
    {"150 x 300 per inch", 1, 150, 300},
    {"118 per centimetre", 2, 118, 118},
    {"59 x 118 per centimetre", 2, 59, 118},
    {"39 per centimetre", 2, 39, 39},
    {"an aspect of 1 x 1", 0, 1, 1},
    {"an aspect of 2 x 3", 0, 2, 3},
    {"72 without unit", 0, 72, 72},
    {"1 per inch", 1, 1, 1},
    {"1 x 300 per inch", 1, 1, 300},
    {"1 per centimetre", 2, 1, 1},
    {"0 per inch", 1, 0, 0},
    {"0 x 300 per inch", 1, 0, 300},
    {"0 per centimetre", 2, 0, 0},
    {"65535 per inch", 1, 65535, 65535},
    {"100 of an unknown unit", 7, 100, 100},
};

struct Exif
{
    const char *name;
    ExifFields fields;
    bool isCopied = true;
};

const Exif exifDensities[] = {
    {"72 per inch", {72, 72, 2}},
    {"300 per inch", {300, 300, 2}},
    {"300 x 150 per inch", {300, 150, 2}},
    {"118.11 per centimetre", {118.11, 118.11, 3}},
    {"100 without unit", {100, 100, 1}},
    {"0 per inch", {0, 0, 2}},
    {"0 x 300 per centimetre", {0, 300, 3}},
    {"0.5 per inch", {0.5, 0.5, 2}},
    {"millions per inch", {4000000, 4000000, 2}},
    {"300 per inch, little-endian", {300, 300, 2, 1, false}},
    {"300 per inch, and a thumbnail's 72", {300, 300, 2, 1, true, 72}},
    {"nothing", {}},
    {"only an orientation", {-1, -1, -1, 6}},
    {"no x", {-1, 300, 2}, false},
    {"no unit", {300, 300, -1}, false},
    {"only a unit", {-1, -1, 3}, false},
    {"an unknown unit", {300, 300, 9}, false},
    {"nothing, but a thumbnail's 72", {-1, -1, -1, 1, true, 72}, false},
};

struct Photoshop
{
    const char *name;
    double x;
    double y;
    int unit;
};

constexpr Photoshop photoshopDensities[] = {
    {"300 per inch", 300, 300, 1},
    {"300 x 150 per inch", 300, 150, 1},
    {"300 shown per centimetre", 300, 300, 2},
    {"72.5 per inch", 72.5, 72.5, 1},
};

struct Physical
{
    const char *name;
    quint32 x;
    quint32 y;
    int unit;
    bool isCopied = true;
};

constexpr Physical physicalDensities[] = {
    {"2835 per metre", 2835, 2835, 1},
    {"11811 per metre", 11811, 11811, 1},
    {"5906 x 11811 per metre", 5906, 11811, 1},
    {"an aspect of 1 x 1", 1, 1, 0},
    {"an aspect of 3 x 2", 3, 2, 0},
    {"150 without unit", 150, 150, 0},
    {"0 per metre", 0, 0, 1},
    {"1 per metre", 1, 1, 1},
    {"2147483647 per metre", 2147483647, 2147483647, 1},
    {"100 of an unknown unit", 100, 100, 7, false},
};

struct Tiff
{
    const char *name;
    double x;
    double y;
    int unit;
};

constexpr Tiff tiffDensities[] = {
    {"nothing", -1, -1, -1},
    {"300 per inch", 300, 300, 2},
    {"204 x 196 per inch", 204, 196, 2},
    {"118.11 per centimetre", 118.11, 118.11, 3},
    {"300 and no unit", 300, 300, -1},
    {"300 without unit", 300, 300, 1},
    {"a unit alone", -1, -1, 3},
    {"0 per inch", 0, 0, 2},
    {"0.1 per inch", 0.1, 0.1, 2},
    {"only x", 300, -1, 2},
};

QByteArray colourName(bool colour)
{
    return colour ? "colour" : "grey";
}

void addJpegs(QList<CopyableFile> &files)
{
    for (const bool colour : {false, true}) {
        const QByteArray body = jpegBody(colour);
        const QByteArray kind = colourName(colour) + " JPEG, ";
        files.append({kind + "no density", jpeg({}, body), true});
        for (const Jfif &density : jfifDensities)
            files.append({kind + "JFIF " + density.name,
                          jpeg({jfif(density.unit, density.x, density.y)}, body), true});
        for (const Exif &density : exifDensities) {
            files.append({kind + "EXIF " + density.name, jpeg({exif(density.fields)}, body),
                          density.isCopied});
            files.append({kind + "JFIF 144 and EXIF " + density.name,
                          jpeg({jfif(1, 144, 144), exif(density.fields)}, body), density.isCopied});
        }
        for (const Photoshop &density : photoshopDensities) {
            const QByteArray block = photoshop(density.x, density.y, density.unit);
            files.append({kind + "Photoshop " + density.name, jpeg({block}, body), true});
            files.append({kind + "Photoshop " + density.name + ", JFIF aspect",
                          jpeg({jfif(0, 1, 1), block}, body), true});
            files.append({kind + "Photoshop " + density.name + ", JFIF 100 without unit",
                          jpeg({jfif(0, 100, 100), block}, body), true});
            files.append({kind + "EXIF 200 before Photoshop " + density.name,
                          jpeg({exif({200, 200, 2}), block}, body), true});
        }
    }
    for (const char *field : {"tiff:XResolution", "tiff:ResolutionUnit", "exif:PixelXDimension",
                              "exif:FocalPlaneXResolution", "exif:XResolution"}) {
        const QByteArray packet = xmp(field, "3");
        const bool isForeign = QByteArray(field).contains("Pixel");
        const bool isExif = field == QByteArray("exif:XResolution");
        files.append({QByteArray("JPEG with EXIF and an XMP field ") + field,
                      jpeg({jfif(1, 144, 144), exif({200, 200, 2}), packet}, jpegBody(true)),
                      !isExif});
        files.append({QByteArray("JPEG with XMP field ") + field,
                      jpeg({jfif(1, 144, 144), packet}, jpegBody(true)), isForeign});
    }
    for (int orientation = 1; orientation <= 8; ++orientation)
        files.append({"turned JPEG, orientation " + QByteArray::number(orientation),
                      jpeg({jfif(1, 96, 96), exif({96, 96, 2, orientation})}, jpegBody(true)),
                      true});
}

void addPngs(QList<CopyableFile> &files)
{
    constexpr std::pair<const char *, int> kinds[] = {{"grey", 0}, {"colour", 2}, {"indexed", 3}};
    for (const auto &[name, type] : kinds) {
        const QByteArray kind = QByteArray(name) + " PNG, ";
        files.append({kind + "no density", png({type}), true});
        for (const Physical &density : physicalDensities)
            files.append(
                {kind + density.name,
                 png({type, 8, {40, 30}, false, {physical(density.x, density.y, density.unit)}}),
                 density.isCopied});
        // ImageMagick 6.9.11 does not respect the orientation of a PNG file.
        for (const Exif &density : exifDensities)
            if (density.fields.orientation < 0)
                files.append(
                    {kind + "EXIF " + density.name,
                     png({type,
                          8,
                          {40, 30},
                          false,
                          {physical(5000, 5000, 1), chunk("eXIf", exifBlock(density.fields))}}),
                     density.isCopied && density.fields.x < 0});
    }
}

void addTiffs(QList<CopyableFile> &files)
{
    for (const Tiff &density : tiffDensities) {
        TiffForm form;
        form.x = density.x;
        form.y = density.y;
        form.unit = density.unit;
        files.append({QByteArray("TIFF, ") + density.name, tiff(form), true});
        form.zeroIsBlack = true;
        form.bigEndian = true;
        form.pages = 3;
        form.rowsPerStrip = 7;
        files.append({QByteArray("TIFF of three pages, ") + density.name, tiff(form), true});
    }
    for (int orientation = 1; orientation <= 8; ++orientation) {
        TiffForm form;
        form.orientation = orientation;
        files.append({"TIFF, orientation " + QByteArray::number(orientation), tiff(form), true});
    }
}

} // namespace

QList<CopyableFile> densityFiles()
{
    QList<CopyableFile> files;
    addJpegs(files);
    addPngs(files);
    addTiffs(files);
    return files;
}

QList<CopyableFile> pictureFiles()
{
    QList<CopyableFile> files;
    for (const bool colour : {false, true}) {
        for (const bool progressive : {false, true}) {
            const QByteArray name = colourName(colour) + (progressive ? " progressive" : "");
            const QByteArray body = jpegBody(colour, progressive);
            files.append({name + " JPEG", jpeg({jfif(0, 1, 1)}, body), true});
            files.append({name + " JPEG with a profile",
                          jpeg(profileSegments(profile(colour), 3), body), true});
        }
    }
    files.append({"JPEG of Adobe's YCbCr", jpeg({adobe(1)}, jpegBody(true)), true});
    files.append({"JPEG of Adobe's RGB", jpeg({adobe(0)}, jpegBody(true)), true});
    for (const int type : {0, 2, 3})
        for (const int depth : {1, 2, 4, 8})
            if (type != 2 || depth == 8)
                files.append({"PNG of type " + QByteArray::number(type) + " with " +
                                  QByteArray::number(depth) + " bits",
                              png({type, depth}), true});
    for (const quint32 gamma : {45455U, 45000U, 46000U})
        for (const int type : {0, 2, 3})
            files.append({"PNG of type " + QByteArray::number(type) + " with gamma " +
                              QByteArray::number(gamma),
                          png({type, 8, {40, 30}, false, {chunk("gAMA", big32(gamma))}}), true});
    for (const bool colour : {false, true})
        files.append(
            {colourName(colour) + " PNG with a profile",
             png({colour ? 2 : 0,
                  8,
                  {40, 30},
                  false,
                  {chunk("iCCP", QByteArray("test\0\0", 6) + qCompress(profile(colour)).mid(4))}}),
             true});
    for (const bool zeroIsBlack : {false, true})
        for (const int fillOrder : {1, 2})
            for (const int rows : {30, 7}) {
                TiffForm form;
                form.zeroIsBlack = zeroIsBlack;
                form.fillOrder = fillOrder;
                form.rowsPerStrip = rows;
                files.append({"TIFF with fill order " + QByteArray::number(fillOrder) + ", " +
                                  (zeroIsBlack ? "0 is black, " : "0 is white, ") +
                                  QByteArray::number(rows) + " rows a strip",
                              tiff(form), true});
            }
    return files;
}

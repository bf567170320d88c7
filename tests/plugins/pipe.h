#pragma once

#include <QByteArray>
#include <QIODevice>

#include <algorithm>
#include <utility>

/// Reads `content` once and cannot seek, as a pipe does. (A QBuffer that calls itself
/// sequential gives its first bytes out again and again.)
class Pipe : public QIODevice
{
public:
    explicit Pipe(QByteArray bytes)
        : content(std::move(bytes))
    {
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const qint64 count = std::min(maxSize, content.size() - given);
        std::copy_n(content.cbegin() + given, count, data);
        given += count;
        return count;
    }
    qint64 writeData(const char * /*data*/, qint64 /*maxSize*/) override { return -1; }

private:
    const QByteArray content;
    qint64 given = 0;
};

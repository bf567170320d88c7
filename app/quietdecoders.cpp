#include "quietdecoders.h"

#include <QString>

#include <string_view>
#include <utility>

#include <unistd.h>

namespace {

thread_local bool decodes = false;
QtMessageHandler usualHandler = nullptr;

ssize_t writeUnlessDecoding(void * /*cookie*/, const char *text, size_t size)
{
    return decodes ? static_cast<ssize_t>(size) : write(STDERR_FILENO, text, size);
}

std::FILE *selectiveStream()
{
    std::FILE *stream = fopencookie(nullptr, "w", {nullptr, writeUnlessDecoding, nullptr, nullptr});
    if (stream)
        std::setvbuf(stream, nullptr, _IONBF, 0);
    return stream;
}

void letMessageThrough(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const bool hasCategory = context.category && std::string_view(context.category) != "default";
    if (decodes && hasCategory)
        return;
    const bool decoded = std::exchange(decodes, false);
    usualHandler(type, context, text);
    decodes = decoded;
}

} // namespace

QuietDecoders::QuietDecoders()
    : m_usualStream(stderr)
{
    static std::FILE *const stream = selectiveStream();
    usualHandler = qInstallMessageHandler(letMessageThrough);
    if (stream)
        stderr = stream;
    decodes = true;
}

QuietDecoders::~QuietDecoders()
{
    decodes = false;
    stderr = m_usualStream;
    qInstallMessageHandler(usualHandler);
}

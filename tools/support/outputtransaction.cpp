#include "outputtransaction.h"

#include "error.h"
#include "text.h"

#include <algorithm>
#include <array>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr off_t maxTrailer = 1024;

std::string readAt(int file, off_t offset)
{
    std::array<char, maxTrailer> buffer{};
    const ssize_t count = pread(file, buffer.data(), buffer.size(), offset);
    return {buffer.data(), static_cast<size_t>(std::max<ssize_t>(count, 0))};
}

// ImageMagick 6.9.11 ignores a disk that has become full.
FileDescriptor openWholePdf(int folder, const std::string &name)
{
    FileDescriptor file(openat(folder, name.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    const bool isRegular = fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode);
    if (!isRegular || !readAt(file.get(), 0).starts_with("%PDF-") ||
        readAt(file.get(), std::max<off_t>(status.st_size - maxTrailer, 0)).find("%%EOF") ==
            std::string::npos)
        throw ToolError("the tool reported success but left no whole PDF");
    return file;
}

} // namespace

OutputTransaction::OutputTransaction(const std::string &output)
    : m_output(output)
    , m_folder(folderOf(m_output.path()))
{
}

void OutputTransaction::commit() const
{
    const FileDescriptor file = openWholePdf(m_folder.descriptor(), resultName);
    m_output.replaceBy(m_folder.descriptor(), resultName, file.get());
}

void validatePdf(int folder, const std::string &name)
{
    openWholePdf(folder, name);
}

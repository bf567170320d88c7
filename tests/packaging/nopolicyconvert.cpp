// Stands in for an ImageMagick that ignores the policy: everything becomes a PDF.

#include <cstdio>
#include <cstring>

namespace {

const char *const page = "%PDF-1.4\n"
                         "1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
                         "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
                         "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 9 9]>>endobj\n"
                         "xref\n"
                         "0 4\n"
                         "0000000000 65535 f \n"
                         "0000000009 00000 n \n"
                         "0000000052 00000 n \n"
                         "0000000101 00000 n \n"
                         "trailer<</Size 4/Root 1 0 R>>\n"
                         "startxref\n"
                         "160\n"
                         "%%EOF\n";

} // namespace

int main(int argc, char **argv)
{
    if (argc == 2 && std::strcmp(argv[1], "-version") == 0) {
        std::puts("Version: ImageMagick 6.9.11-60 Q16 x86_64");
        return 0;
    }
    const char *name = argv[argc - 1];
    if (std::strncmp(name, "pdf:", 4) == 0)
        name += 4;
    std::FILE *file = argc > 1 ? std::fopen(name, "w") : nullptr;
    if (!file)
        return 1;
    std::fputs(page, file);
    return std::fclose(file);
}

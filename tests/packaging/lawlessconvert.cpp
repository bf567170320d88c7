// Stands in for an ImageMagick that keeps to no policy: everything becomes a PDF.

#include <cstdio>
#include <cstring>

int main(int argc, char **argv)
{
    if (argc == 2 && std::strcmp(argv[1], "-version") == 0) {
        std::puts("Version: ImageMagick 6.9.11-60 Q16 x86_64");
        return 0;
    }
    std::FILE *file = argc > 1 ? std::fopen(argv[argc - 1], "w") : nullptr;
    if (!file)
        return 1;
    std::fputs("%PDF-1.4\n%%EOF\n", file);
    return std::fclose(file);
}

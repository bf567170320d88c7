// Stands in for an ImageMagick whose library the sandbox hides.

#include <cstdio>

const char *imageToolVersion();

int main()
{
    std::puts(imageToolVersion());
}

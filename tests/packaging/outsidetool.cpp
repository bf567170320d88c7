// Stands in for an ImageMagick whose library lies where the sandbox lets nobody read.

#include <cstdio>

const char *imageToolVersion();

int main()
{
    std::puts(imageToolVersion());
}

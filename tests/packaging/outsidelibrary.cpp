// A library where the sandbox lets nobody read: beside the build, not beside the program.

const char *imageToolVersion()
{
    return "Version: ImageMagick 6.9.11-60 Q16 x86_64";
}

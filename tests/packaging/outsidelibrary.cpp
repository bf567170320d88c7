// A library that the sandbox hides: in the build folder, not beside the program.

const char *imageToolVersion()
{
    return "Version: ImageMagick 6.9.11-60 Q16 x86_64";
}

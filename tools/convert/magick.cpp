#include "magick.h"

#include "bundle.h"
#include "environment.h"
#include "jpegscaling.h"

#include <array>

namespace {

// ImageMagick itself stops at its time limit where it looks at the clock; inside a decoder it
// does not, and is ended from here.
constexpr std::chrono::seconds graceBeyondLimit{4};

std::string sizeText(PixelSize size)
{
    return std::to_string(size.width) + "x" + std::to_string(size.height);
}

PixelSize turned(PixelSize size, bool isTurned)
{
    return isTurned ? PixelSize{size.height, size.width} : size;
}

// ImageMagick's names, from 1 on.
constexpr std::array<const char *, 8> orientations = {
    "TopLeft", "TopRight", "BottomRight", "BottomLeft",
    "LeftTop", "RightTop", "RightBottom", "LeftBottom",
};

} // namespace

// The first limit read counts, and the last right. ImageMagick reads
// MAGICK_CONFIGURE_PATH, then /etc, then XDG_CONFIG_HOME, then HOME (6.9.11 and 7.1).
SubprocessSpec magickCommand(const std::vector<std::string> &arguments, const ConvertLimits &limits,
                             const std::string &pixels)
{
    const std::string configuration = policyFolder();
    std::vector<std::string> variables = limitVariables(limits);
    variables.push_back("MAGICK_CONFIGURE_PATH=" + configuration + "/limits");
    variables.push_back("XDG_CONFIG_HOME=" + configuration + "/rights");
    variables.push_back("HOME=" + configuration);
    variables.push_back("MAGICK_TEMPORARY_PATH=" + pixels);
    variables.emplace_back("LC_ALL=C.UTF-8");
    SubprocessSpec spec;
    spec.command = realCommand("convert");
    spec.command.insert(spec.command.end(), arguments.begin(), arguments.end());
    spec.environment = environmentWith(variables);
    spec.limits = kernelLimits(limits);
    spec.deadline = limits.time + graceBeyondLimit;
    // On SIGTERM ImageMagick 6.9.11 removes its temporary pixels, perhaps gigabytes, and ends.
    spec.signalOnOurDeath = SIGTERM;
    return spec;
}

Sandbox magickSandbox(const std::string &program, const std::string &image,
                      const std::vector<std::string> &folders)
{
    Sandbox sandbox = {.files = rulesToRun(program)};
    sandbox.files.push_back({policyFolder(), Access::Read});
    sandbox.files.push_back({image, Access::Read});
    for (const std::string &folder : folders)
        sandbox.files.push_back({folder, Access::Write});
    return sandbox;
}

// By default ImageMagick (6.9.11 and 7.1) writes EXIF, XMP, IPTC and comments of an image into
// the JPEG data of its page, and draws its label on the page.
std::vector<std::string> pageArguments(const ConvertOptions &options, const ConvertedImage &image,
                                       const std::string &input, const std::string &result)
{
    std::vector<std::string> arguments;
    const auto add = [&arguments](std::initializer_list<std::string> words) {
        arguments.insert(arguments.end(), words);
    };
    const bool isTurned = image.orientation && swapsSides(*image.orientation);
    const std::optional<JpegScaling> scaling =
        options.resize ? jpegScaling(*options.resize, turned(image.size, isTurned)) : std::nullopt;
    if (scaling)
        add({"-define", "jpeg:size=" + sizeText(turned(scaling->decoded, isTurned))});
    add({input});
    // The frames of an animation may contain only what changes.
    if (image.kind == ImageKind::Gif)
        add({"-coalesce"});
    if (image.orientation)
        add({"-orient", orientations.at(static_cast<size_t>(*image.orientation - 1))});
    add({"-auto-orient"});
    if (scaling)
        add({"-resize", sizeText(scaling->result) + "!"});
    else if (options.resize)
        add({"-resize", sizeText(*options.resize)});
    if (!options.rotate.empty())
        add({"-background", "white", "-rotate", options.rotate});
    if (!options.compress.empty())
        add({"-compress", options.compress});
    if (options.monochrome)
        add({"-monochrome"});
    // An offset on a canvas would move the image on its page.
    add({"+repage", "+profile", "!icc,!icm,*", "+set", "comment", "+set", "label",
         "pdf:" + result});
    return arguments;
}

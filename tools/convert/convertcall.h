#pragma once

#include "copyablepage.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct PixelSize
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};

/// The application's options.
struct ConvertOptions
{
    /// The box that the image has to fit into.
    std::optional<PixelSize> resize;
    /// Degrees clockwise as a decimal number; "" for none.
    std::string rotate;
    /// ImageMagick's name; "" for none.
    std::string compress;
    bool monochrome = false;

    /// Whether the pixels of an image change.
    bool changesPixels() const;
    /// Whether data with this compression may be copied.
    bool allows(Compression compression) const;
};

/// A call of the application.
struct ConvertCall
{
    ConvertOptions options;
    /// At least one.
    std::vector<std::string> inputs;
    std::string output;
};

constexpr const char *convertUsage = "usage: convert [-resize WIDTHxHEIGHT] [-rotate DEGREES] "
                                     "[-compress NAME] [-monochrome] IMAGE... NAME.pdf";

/// The call that `arguments` make, or nothing for any that the application never makes.
std::optional<ConvertCall> parseConvertCall(const std::vector<std::string> &arguments);

/// A plain name for the `number`-th input. It keeps the extension of a format that the policy
/// allows, as ImageMagick recognises some formats only by it; any other extension is dropped.
std::string inputName(size_t number, const std::string &path);

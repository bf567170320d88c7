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

/// What the application asks for.
struct ConvertOptions
{
    /// The box that an image is to fill.
    std::optional<PixelSize> resize;
    /// Degrees clockwise as a decimal number; "" for none.
    std::string rotate;
    /// ImageMagick's name; "" for none.
    std::string compress;
    bool monochrome = false;

    /// Whether an image gets other pixels than it has.
    bool changesPixels() const;
    /// Whether data compressed in this way may stay as it is.
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

/// A plain name for the `number`-th input. It keeps the extension of a format that the policy lets
/// in, as ImageMagick recognises some formats by it alone; any other could name a format that is
/// not let in.
std::string inputName(size_t number, const std::string &path);

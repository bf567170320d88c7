#pragma once

#include "copyablepage.h"

#include <optional>
#include <string>
#include <vector>

/// A call of the application's shape: options, then at least one input file, then a PDF.
struct ConvertCall
{
    std::vector<std::string> options;
    std::vector<std::string> inputs;
    std::string output;
};

/// The call that `arguments` make, or nothing when they are of another shape.
std::optional<ConvertCall> parseConvertCall(const std::vector<std::string> &arguments);

/// Whether ImageMagick would be asked to delete what it reads. Version 7.1 takes this pseudo format
/// off a name before it asks any policy.
bool asksToDelete(const std::vector<std::string> &arguments);

/// Whether `options` make other pixels of an image than those that it has.
bool changesPixels(const std::vector<std::string> &options);

Compression askedCompression(const std::vector<std::string> &options);

/// The plain name for the `number`-th input in the private folder. It keeps the extension of a
/// format that is let in, as ImageMagick knows some of them by nothing else; any other could name
/// a format that is not.
std::string inputName(size_t number, const std::string &path);

#pragma once

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

/// The plain name for the `number`-th input in the private folder. It keeps the extension, from
/// which ImageMagick tells the formats that have no signature; never ".pdf", which is the result's.
std::string inputName(size_t number, const std::string &path);

/// `name` as ImageMagick has to be given it to write a file of exactly that name.
std::string outputWord(std::string name);

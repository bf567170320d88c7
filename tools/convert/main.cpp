#include "bundle.h"
#include "conversion.h"
#include "error.h"
#include "toolmain.h"

namespace {

std::string run(const Arguments &arguments)
{
    const std::optional<ConvertCall> call = parseConvertCall(arguments);
    if (!call)
        throw usageError(convertUsage);
    for (const std::string &input : call->inputs)
        requireRegularFile(input);
    // Without a policy nothing is made, not even of images that are only copied.
    requirePolicy();
    return Conversion(*call).run();
}

} // namespace

int main(int argc, char **argv)
{
    return runTool(
        {"convert", convertUsage, run, [](const Arguments &arguments) { return arguments; }}, argc,
        argv);
}

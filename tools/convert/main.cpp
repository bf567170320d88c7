#include "bundle.h"
#include "conversion.h"
#include "error.h"
#include "magick.h"
#include "toolmain.h"

#include <limits>

namespace {

Outcome run(const Arguments &arguments)
{
    if (const std::optional<ConvertCall> call = parseConvertCall(arguments)) {
        for (const std::string &input : call->inputs)
            requireRegularFile(input);
        // Without a policy nothing is made, also of images that are only copied.
        policyFolder();
        return Conversion(*call).run();
    }
    if (asksToDelete(arguments))
        throw ToolError("an image that is to be deleted is not read");
    const std::string pixels = pixelFolders().front();
    const Workload unknown = {.bytes = std::numeric_limits<unsigned long long>::max()};
    return handOver(
        magickRun(arguments, limitsFor(unknown, machineMemory(), freeBytesIn(pixels)), pixels));
}

} // namespace

int main(int argc, char **argv)
{
    return runProgram({"convert", run, [](const Arguments &arguments) { return arguments; }}, argc,
                      argv);
}

#include "bundle.h"
#include "conversion.h"
#include "error.h"
#include "outputtransaction.h"
#include "text.h"
#include "toolmain.h"

namespace {

Sandbox sandboxFor(const ConvertCall &call, const std::vector<std::string> &folders)
{
    Sandbox sandbox = {.files = rulesToRun(realCommand("convert").front()),
                       .startsProcesses = true};
    sandbox.files.push_back({resourcesFolder(), Access::Read});
    for (const std::string &input : call.inputs)
        sandbox.files.push_back({input, Access::Read});
    for (const std::string &folder : folders)
        sandbox.files.push_back({folder, Access::Write});
    return sandbox;
}

std::string run(const Arguments &arguments)
{
    const std::optional<ConvertCall> call = parseConvertCall(arguments);
    if (!call)
        throw usageError(convertUsage);
    for (const std::string &input : call->inputs)
        requireRegularFile(input);
    // Without a policy nothing is made, not even from images that are only copied.
    requirePolicy();
    const OutputTransaction output(call->output);
    const std::unique_ptr<WorkDirectory> pixels =
        WorkDirectory::inFirstOf(pixelFolders(folderOf(call->output)));
    SubprocessSpec bounds;
    bounds.sandbox = sandboxFor(*call, {output.folder().plainPath(), pixels->plainPath()});
    std::string warnings = runConfined("convert", "the images", bounds, [&] {
        holdSignals();
        return Conversion(*call, output.folder(), *pixels).run();
    });
    output.commit();
    return warnings;
}

} // namespace

int main(int argc, char **argv)
{
    return runTool(
        {"convert", convertUsage, run, [](const Arguments &arguments) { return arguments; }}, argc,
        argv);
}

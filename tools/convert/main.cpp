#include "bundle.h"
#include "convertcall.h"
#include "convertlimits.h"
#include "environment.h"
#include "job.h"
#include "pdftitle.h"
#include "program.h"
#include "text.h"

#include <limits>

#include <sys/stat.h>

namespace {

// ImageMagick itself stops at its time limit where it looks at the clock; inside a decoder it
// does not, and is ended from here.
constexpr std::chrono::seconds graceBeyondLimit{4};

unsigned long long bytesIn(const std::vector<std::string> &files)
{
    unsigned long long bytes = 0;
    for (const std::string &file : files) {
        struct stat status = {};
        if (stat(file.c_str(), &status) == 0)
            bytes += static_cast<unsigned long long>(status.st_size);
    }
    return bytes;
}

// Of limits the policy that is read first holds, of rights the last: ImageMagick reads
// MAGICK_CONFIGURE_PATH, then /etc, then XDG_CONFIG_HOME, then HOME (6.9.11 and 7.1).
ChildSpec specFor(const ConvertLimits &limits, const std::string &pixels)
{
    const std::string configuration = policyFolder();
    std::vector<std::string> variables = limitVariables(limits);
    variables.push_back("MAGICK_CONFIGURE_PATH=" + configuration + "/limits");
    variables.push_back("XDG_CONFIG_HOME=" + configuration + "/rights");
    variables.push_back("HOME=" + configuration);
    variables.push_back("MAGICK_TEMPORARY_PATH=" + pixels);
    variables.emplace_back("LC_ALL=C.UTF-8");
    ChildSpec spec;
    spec.command = realCommand("convert");
    spec.environment = environmentWith(variables);
    spec.limits = kernelLimits(limits);
    // On SIGTERM ImageMagick 6.9.11 removes its temporary pixels, gigabytes perhaps, and ends.
    spec.signalOnOurDeath = SIGTERM;
    return spec;
}

Outcome convert(const ConvertCall &call)
{
    for (const std::string &input : call.inputs)
        requireRegularFile(input);
    Job job(call.output);
    const PrivateFolder pixels(pixelFolder());
    const ConvertLimits limits = limitsFor(call.inputs.size(), bytesIn(call.inputs),
                                           machineMemory(), freeBytesIn(pixelFolder()));
    ChildSpec spec = specFor(limits, pixels.path());
    spec.deadline = limits.time + graceBeyondLimit;
    spec.command.insert(spec.command.end(), call.options.begin(), call.options.end());
    size_t number = 0;
    for (const std::string &input : call.inputs)
        spec.command.push_back(job.addInput(input, inputName(++number, input)));
    spec.command.push_back(outputWord(job.resultName()));
    const std::string file = fileNameOf(call.output);
    return job.run(std::move(spec),
                   [title = file.substr(0, file.rfind('.'))](int pdf) { repairTitle(pdf, title); });
}

Outcome run(const Arguments &arguments)
{
    if (const std::optional<ConvertCall> call = parseConvertCall(arguments))
        return convert(*call);
    const std::string pixels = pixelFolder();
    constexpr auto unknownSize = std::numeric_limits<unsigned long long>::max();
    ChildSpec spec =
        specFor(limitsFor(1, unknownSize, machineMemory(), freeBytesIn(pixels)), pixels);
    spec.command.insert(spec.command.end(), arguments.begin(), arguments.end());
    return handOver(std::move(spec));
}

} // namespace

int main(int argc, char **argv)
{
    return runProgram({"convert", run, [](const Arguments &arguments) { return arguments; }}, argc,
                      argv);
}

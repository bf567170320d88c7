#include "magick.h"

#include "bundle.h"
#include "environment.h"

namespace {

// ImageMagick itself stops at its time limit where it looks at the clock; inside a decoder it
// does not, and is ended from here.
constexpr std::chrono::seconds graceBeyondLimit{4};

} // namespace

// Of limits the policy that is read first holds, of rights the last: ImageMagick reads
// MAGICK_CONFIGURE_PATH, then /etc, then XDG_CONFIG_HOME, then HOME (6.9.11 and 7.1).
ChildSpec magickRun(const std::vector<std::string> &words, const ConvertLimits &limits,
                    const std::string &pixels)
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
    spec.command.insert(spec.command.end(), words.begin(), words.end());
    spec.environment = environmentWith(variables);
    spec.limits = kernelLimits(limits);
    spec.deadline = limits.time + graceBeyondLimit;
    // On SIGTERM ImageMagick 6.9.11 removes its temporary pixels, gigabytes perhaps, and ends.
    spec.signalOnOurDeath = SIGTERM;
    return spec;
}

// Left to itself, ImageMagick (6.9.11 and 7.1) hands EXIF, XMP, IPTC and comments of an image on
// within the JPEG data of its page, and draws its label on the page.
std::vector<std::string> pageWords(const std::vector<std::string> &options,
                                   const std::string &input, const std::string &result)
{
    std::vector<std::string> words = options;
    for (const char *word :
         {input.c_str(), "+profile", "!icc,!icm,*", "+set", "comment", "+set", "label"})
        words.emplace_back(word);
    words.push_back("pdf:" + result);
    return words;
}

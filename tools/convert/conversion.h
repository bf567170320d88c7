#pragma once

#include "convertcall.h"
#include "convertlimits.h"
#include "imagekind.h"
#include "job.h"
#include "pagelibrary.h"
#include "subprocesspool.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

/// One call of the application's shape: each image becomes a part of the document, copied or made
/// by runs of ImageMagick, as many at once as there are cores; then the parts are joined in the
/// order of the images.
class Conversion
{
public:
    /// Throws ToolError when nothing can be written beside the output.
    explicit Conversion(const ConvertCall &call);

    /// May throw ToolError. The outcome of a success holds what ImageMagick warned of.
    Outcome run();

private:
    // What one run of ImageMagick makes.
    struct Run
    {
        std::vector<std::string> words;
        size_t part;
        Workload work;
    };

    bool startNext();
    bool planNext();
    void plan(const std::string &path);
    bool copy(const std::string &path, int file);
    void convert(const std::string &path, int file);
    std::vector<std::string> optionsFor(int file, ImageKind kind) const;
    void addRun(const std::vector<std::string> &options, const std::string &input,
                const Workload &work);
    std::optional<Outcome> finish(const ChildPool::Ended &ended);
    Outcome join();

    const ConvertCall &m_call;
    const bool m_mayCopy;
    const size_t m_mostAtOnce;
    Job m_job;
    PrivateFolder m_pixels;
    std::vector<DocumentPart> m_parts;
    size_t m_planned = 0;
    std::deque<Run> m_runs;
    std::string m_warnings;
    // Last, so that children end before their folders go.
    ChildPool m_pool;
};

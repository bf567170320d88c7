#pragma once

#include "convertcall.h"
#include "convertlimits.h"
#include "document.h"
#include "imageplan.h"
#include "inputlinks.h"
#include "outputtransaction.h"
#include "subprocesspool.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

/// One call: each image becomes a part of the document, copied or made by runs of ImageMagick, as
/// many at the same time as there are cores; then the parts are joined in the order of the images.
class Conversion
{
public:
    /// Throws ToolError when nothing can be written beside the output.
    explicit Conversion(const ConvertCall &call);

    /// Returns what ImageMagick warned of. Throws ToolError.
    std::string run();

private:
    // What one run of ImageMagick makes.
    struct Run
    {
        std::string path;
        ConvertedImage image;
        /// Which images of the file, as ImageMagick selects them; "" for all.
        std::string selector;
        size_t part;
        Workload work;
    };

    bool startNext();
    void plan(const std::string &path);
    void addRuns(const std::string &path, const ConvertedImage &image, unsigned long long bytes);
    void start(const Run &run);
    void finish(ChildPool::Ended ended);
    void join();
    void requireNoSignal();

    const ConvertCall &m_call;
    const size_t m_concurrency;
    OutputTransaction m_output;
    Spool m_spool;
    InputLinks m_inputs;
    /// For pixels that do not fit into memory.
    std::unique_ptr<WorkDirectory> m_pixels;
    std::vector<DocumentPart> m_parts;
    size_t m_planned = 0;
    std::deque<Run> m_runs;
    std::string m_warnings;
    // Last, so that children end before their folders are removed.
    ChildPool m_pool;
};

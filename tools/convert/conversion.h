#pragma once

#include "convertcall.h"
#include "convertlimits.h"
#include "document.h"
#include "imageplan.h"
#include "inputlinks.h"
#include "subprocesspool.h"
#include "workdirectory.h"

#include <deque>
#include <string>
#include <vector>

/// One call: each image becomes a part of the document, copied or made by runs of ImageMagick, as
/// many at the same time as there are cores; then the parts are joined in the order of the images.
class Conversion
{
public:
    /// The document is made in `folder`, as the file OutputTransaction::resultName; pixels that do
    /// not fit into memory go into `pixels`. Throws ToolError.
    Conversion(const ConvertCall &call, const WorkDirectory &folder, const WorkDirectory &pixels);

    /// Returns ImageMagick's warnings. Throws ToolError.
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
    void finish(SubprocessPool::Ended ended);
    void join();

    const ConvertCall &m_call;
    const size_t m_concurrency;
    const WorkDirectory &m_folder;
    const WorkDirectory &m_pixels;
    Spool m_spool;
    InputLinks m_inputs;
    std::vector<DocumentPart> m_parts;
    size_t m_planned = 0;
    std::deque<Run> m_runs;
    std::string m_warnings;
    SubprocessPool m_pool;
};

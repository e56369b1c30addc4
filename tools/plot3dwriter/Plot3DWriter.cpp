#include "plot3dwriter/Plot3DWriter.h"

#include <filesystem>
#include <system_error>

#include "plot3dwriter/ContentWriter.h"
#include "plot3dwriter/FileSink.h"

namespace quorvia::plot3dwriter {

namespace {

void writeTo(ByteSink& sink, const FileDescription_s& description, const FileForm_s& form,
             WriteOutcome_s& outcome) {
    outcome.blocks = writeContents(description, form, sink);
    outcome.byteCount = sink.position();
}

/// Removes a file that is not whole, unless its writing was completed.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const std::string& path) : path_(path) {}
    ~UnfinishedFile() {
        std::error_code ignored; // the fault that led here is the one to tell
        if (!isComplete_ && std::filesystem::is_regular_file(path_, ignored))
            std::filesystem::remove(path_, ignored);
    }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    void complete() { isComplete_ = true; }

private:
    std::filesystem::path path_;
    bool isComplete_ = false;
};

} // namespace

WriteOutcome_s writePlot3DFile(const std::string& path, const FileDescription_s& description,
                               const FileForm_s& form) {
    WriteOutcome_s outcome;
    const std::string failure = "cannot write " + path + ": ";
    if (const std::string fault = findFault(description, form); !fault.empty()) {
        outcome.problem = failure + fault;
        return outcome;
    }
    try {
        FileSink sink(path);
        UnfinishedFile unfinished(path);
        writeTo(sink, description, form, outcome);
        unfinished.complete();
    } catch (const WriteFault& fault) {
        outcome.problem = failure + fault.what();
    }
    return outcome;
}

WriteOutcome_s writePlot3DBytes(std::string& bytes, const FileDescription_s& description,
                                const FileForm_s& form) {
    WriteOutcome_s outcome;
    outcome.problem = findFault(description, form);
    if (!outcome.problem.empty())
        return outcome;
    try {
        MemorySink sink(bytes);
        writeTo(sink, description, form, outcome);
    } catch (const WriteFault& fault) {
        outcome.problem = fault.what();
    }
    return outcome;
}

} // namespace quorvia::plot3dwriter

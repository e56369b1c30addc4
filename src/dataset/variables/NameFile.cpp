#include "dataset/variables/NameFile.h"

#include <memory>
#include <new>
#include <string_view>

#include "plot3dfile/bytes/FileStream.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

namespace {

constexpr std::int64_t lineBufferSize = 128; // a longer line goes on as the next name

/// The text of a file with each CR LF as one line feed.
class TextReader {
public:
    explicit TextReader(FileStream& stream) : stream_(stream), next_(stream.readCharacter()) {}

    /// The next character as 0 to 255, -1 at the end.
    int read() {
        int character = next_;
        next_ = stream_.readCharacter();
        if (character == '\r' && next_ == '\n') {
            character = '\n';
            next_ = stream_.readCharacter();
        }
        return character;
    }
    bool atEnd() const { return next_ < 0; }

private:
    FileStream& stream_;
    int next_;
};

/// Reads up to and with the next line feed, or as much as the buffer holds, and terminates it.
void readLine(TextReader& reader, char* line) {
    std::int64_t length = 0;
    bool isComplete = false;
    while (length < lineBufferSize - 1 && !isComplete && !reader.atEnd()) {
        const int character = reader.read();
        line[length++] = static_cast<char>(character);
        isComplete = character == '\n';
    }
    line[length] = '\0';
}

void cutName(char* line) {
    const std::size_t length = std::string_view(line).find_first_of("\n;");
    if (length != std::string_view::npos)
        line[length] = '\0';
}

/// False: there is no memory for a line, or the file could not be read on.
bool setNames(FileStream& stream, QuorStringListHandle names, std::int32_t firstIndex,
              std::int32_t count) {
    TextReader reader(stream);
    for (std::int32_t n = 0; n < count; ++n) {
        const HostString line(QuorUtilStringAlloc(lineBufferSize, "Name File Variable Name"));
        if (!line)
            return false;
        readLine(reader, line.get());
        if (stream.hadReadError())
            return false; // what has come of the line is no name
        if (line.view().empty())
            return true; // the end of the file
        cutName(line.get());
        if (!QuorUtilStringListSetString(names, std::int64_t{firstIndex} + n, line.get()))
            throw std::bad_alloc();
    }
    return true;
}

} // namespace

void readNameFile(const std::string& path, QuorStringListHandle names, std::int32_t firstIndex,
                  std::int32_t count) {
    const std::unique_ptr<FileStream> stream = FileStream::open(path);
    if (!stream) {
        QuorUtilDialogErrMsg(("The Name File " + path + " could not be opened.").c_str());
        return;
    }
    if (!setNames(*stream, names, firstIndex, count))
        QuorUtilDialogErrMsg(("The Name File " + path + " could not be read to its end.").c_str());
}

} // namespace quorvia::quorutildataio

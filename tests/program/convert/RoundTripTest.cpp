// PLOT3D files to PLOT3D files: every row of the matrix comes back as it was.
#include <iterator>
#include <sstream>

#include "program/convert/ReadBack.h"
#include "support/BytesOfFile.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::ByteOrder_e;
using plot3dwriter::Encoding_e;
using plot3dwriter::FileDescription_s;
using plot3dwriter::FileForm_s;
using plot3dwriter::FileKind_e;

using Words = std::vector<std::string>;

Words tokensOf(const std::string& text) {
    std::istringstream in(text);
    return {std::istream_iterator<std::string>(in), {}};
}

/// What should come out: the file without the integers that mean nothing.
std::string wanted(const WrittenFile_s& file) {
    FileDescription_s contents = file.contents;
    contents.triangleTag = nullptr;
    return bytesOf(contents, file.form);
}

/// Text may break its lines elsewhere.
void expectSameFile(const std::string& path, const WrittenFile_s& original) {
    const std::string found = bytesOfFile(path);
    const bool isText = original.form.encoding == Encoding_e::Text;
    if (isText)
        EXPECT_EQ(tokensOf(found), tokensOf(wanted(original))) << path;
    else
        EXPECT_TRUE(found == wanted(original)) << path;
}

Words optionsFor(const FileForm_s& form) {
    Words words = {"--precision", isDouble(form) ? "64" : "32"};
    const bool isBig = form.byteOrder == ByteOrder_e::Big;
    if (form.encoding == Encoding_e::Text)
        words.insert(words.end(), {"--encoding", "text"});
    else if (form.encoding == Encoding_e::Binary)
        words.insert(words.end(), {"--encoding", "binary"});
    else
        words.insert(words.end(), {"--encoding", "fortran" + std::to_string(form.markerBytes)});
    if (form.encoding != Encoding_e::Text)
        words.insert(words.end(), {"--byte-order", isBig ? "big" : "little"});
    return words;
}

/// Another encoding, byte order and precision that every value survives.
FileForm_s otherForm(const FileForm_s& form) {
    return formOf(Encoding_e::Fortran,
                  form.byteOrder == ByteOrder_e::Big ? ByteOrder_e::Little : ByteOrder_e::Big,
                  Precision_e::Double, form.markerBytes == 4 ? 8 : 4);
}

class RoundTrip : public ReadBackTest, public ::testing::WithParamInterface<MatrixCase_s> {
protected:
    static void run(Words words, const Words& options, const std::string& result) {
        words.insert(words.begin(), "convert");
        words.insert(words.end(), options.begin(), options.end());
        words.insert(words.end(), {"-o", result});
        std::string err;
        EXPECT_EQ(runProgram(words, &err), 0) << err;
    }

    static void expectOriginals(const std::string& stem, const OpenedCase_s& opened) {
        for (const FileReading& reading : opened.readings) {
            const std::string path = reading.file().path;
            expectSameFile(stem + path.substr(path.rfind('.')), reading.file());
        }
    }
};

TEST_P(RoundTrip, GivesTheSameFilesBack) {
    const std::string where = folder("case");
    const OpenedCase_s opened = writeCase(where, GetParam());
    run(arguments(opened), optionsFor(otherForm(GetParam().form)), where + "/between.x");
    Words between;
    for (const std::string& file : opened.files)
        between.push_back(where + "/between" + file.substr(file.rfind('.')));
    run(between, optionsFor(GetParam().form), where + "/back.x");
    expectOriginals(where + "/back", opened);
}

TEST_P(RoundTrip, KeepsTheFormWhereNoneIsAskedFor) {
    const std::string where = folder("case");
    const OpenedCase_s opened = writeCase(where, GetParam());
    run(arguments(opened), {}, where + "/same.x");
    expectOriginals(where + "/same", opened);
}

INSTANTIATE_TEST_SUITE_P(Every, RoundTrip, ::testing::ValuesIn(everyCase()),
                         [](const auto& tested) { return nameOf(tested.param); });

} // namespace
} // namespace quorvia::testsupport

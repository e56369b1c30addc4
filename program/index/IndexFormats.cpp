#include "index/IndexFormats.h"

#include <algorithm>
#include <filesystem>

#include <plot3d/Error.h>

#include "index/cgns/CgnsIndex.h"
#include "index/p3d/P3dIndex.h"
#include "index/references/ReferenceIndex.h"
#include "index/vp3d/Vp3dIndex.h"
#include "index/xdmf/XdmfIndex.h"

namespace plot3d::program {

namespace {

template <class Format>
std::unique_ptr<IndexFormat> make() {
    return std::make_unique<Format>();
}

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return text;
}

} // namespace

const std::vector<IndexFormatRow_s>& indexFormats() {
    static const std::vector<IndexFormatRow_s> rows = {
        {".cgns", make<CgnsIndex>, ".cgns",
         "programs that read it need the environment variable HDF5_EXTFILE_PREFIX='${ORIGIN}'; "
         "without it they show values that are not there"},
        {".xmf2", make<XdmfIndex>, ".vtm", ""},
        {".json", make<ReferenceIndex>, ".npz",
         "fsspec takes relative paths from the working directory of the program that reads them"},
        {".p3d", make<P3dIndex>, ".vtm", ""},
        {".vp3d", make<Vp3dIndex>, ".vtm", ""},
    };
    return rows;
}

const IndexFormatRow_s& indexFormatOf(const std::string& file) {
    const std::string extension = lowerCase(std::filesystem::path(file).extension());
    std::string known;
    for (const IndexFormatRow_s& row : indexFormats()) {
        if (extension == row.extension)
            return row;
        known += (known.empty() ? "" : ", ") + std::string(row.extension);
    }
    throw Error(ErrorKind::Usage,
                "the ending of \"" + file + "\" tells no format of an index; known are " + known);
}

} // namespace plot3d::program

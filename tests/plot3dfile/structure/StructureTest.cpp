#include "StructureTest.h"

namespace quorvia::quorutildataio {

StructureTest::StructureTest() {
    setLoadOptionDefaults(options);
}

Plot3DFilePtr StructureTest::openRecord(const std::string& bytes,
                                        Plot3DDataStructure_e dataStructure,
                                        bool isSolutionOrFunction, Plot3DStyle_e style) {
    disk.put("record", bytes);
    Plot3DFilePtr file = createPlot3DFile("record", false);
    file->dataStructure = dataStructure;
    file->isSolutionOrFunction = isSolutionOrFunction;
    file->style = style;
    EXPECT_TRUE(openPlot3DFile(*file));
    return file;
}

Plot3DFilePtr StructureTest::detect(const std::string& bytes, bool isSolutionOrFunction) {
    disk.put("file", bytes);
    Plot3DFileBuilder builder(options);
    return buildPlot3DFile(builder, "file", isSolutionOrFunction);
}

void StructureTest::describe(Plot3DDataStructure_e dataStructure, Plot3DStyle_e style,
                             bool isMultiGrid) {
    options.autoDetect = false;
    options.dataStructure = dataStructure;
    options.style = style;
    options.isMultiGrid = isMultiGrid;
}

} // namespace quorvia::quorutildataio

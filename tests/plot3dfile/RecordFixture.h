// A test of a file record, whose disk is in memory.
#pragma once

#include <cstdint>
#include <string>

#include "plot3dfile/detection/EncodingSniffer.h"
#include "plot3dfile/detection/FileCreation.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "support/FakeDisk.h"
#include "support/FileBytes.h"
#include "support/HostedTest.h"

namespace quorvia::testsupport {

class RecordFixture : public GuestTest {
protected:
    void TearDown() override {
        file = nullptr;
        EXPECT_EQ(disk.openFiles, 0);
    }

    /// The record of a file of these bytes, sniffed and closed.
    quorutildataio::Plot3DFile_s& sniff(const std::string& bytes) {
        disk.put("wing.x", bytes);
        return sniffStored();
    }
    quorutildataio::Plot3DFile_s& sniffStored() {
        file = quorutildataio::createPlot3DFile("wing.x", false);
        return *file;
    }

    /// The open record of a file of these bytes, not sniffed: its encoding is as told.
    quorutildataio::Plot3DFile_s& open(quorutildataio::Plot3DEncoding_e encoding,
                                       const std::string& bytes) {
        disk.put("wing.x", bytes);
        return openStored(encoding, std::ssize(bytes));
    }
    quorutildataio::Plot3DFile_s& openStored(quorutildataio::Plot3DEncoding_e encoding,
                                             std::int64_t size) {
        file = quorutildataio::createPlot3DFile("wing.x", true);
        file->encoding = encoding;
        file->fileSize = size;
        EXPECT_TRUE(quorutildataio::openPlot3DFile(*file));
        quorutildataio::rewindPlot3DFile(*file);
        return *file;
    }
    quorutildataio::Plot3DFile_s& openText(const std::string& text) {
        return open(quorutildataio::Plot3DEncoding_Ascii, text);
    }
    quorutildataio::Plot3DFile_s& openBinary(const std::string& bytes) {
        return open(quorutildataio::Plot3DEncoding_Binary, bytes);
    }
    quorutildataio::Plot3DFile_s& openFortran(const std::string& bytes) {
        return open(quorutildataio::Plot3DEncoding_FortranUnformatted, bytes);
    }

    FakeDisk disk;
    quorutildataio::Plot3DFilePtr file;
};

} // namespace quorvia::testsupport

#include "convert/npz/ZipOutput.h"

#include <zlib.h>

namespace plot3d::program {

namespace {

constexpr std::uint32_t localHeader = 0x04034b50;
constexpr std::uint32_t directoryHeader = 0x02014b50;
constexpr std::uint32_t bigDirectoryEnd = 0x06064b50;
constexpr std::uint32_t bigDirectoryLocator = 0x07064b50;
constexpr std::uint32_t directoryEnd = 0x06054b50;
constexpr std::uint16_t versionOfBigSizes = 45;
constexpr std::uint16_t namesAreUtf8 = 0x0800;
constexpr std::uint16_t firstOfJanuary1980 = 0x21; // no zip file is older
constexpr std::uint16_t bigSizes = 1;              // tag of the extra field
constexpr std::uint32_t inExtraField = 0xffffffff;
constexpr std::uint16_t inBigEnd = 0xffff;
constexpr std::int64_t checksumPlace = 14; // in a local header

void putCommonHeader(ByteOutput& out) {
    out.put(versionOfBigSizes);
    out.put(namesAreUtf8);
    out.put(std::uint16_t{0}); // stored
    out.put(std::uint16_t{0}); // midnight
    out.put(firstOfJanuary1980);
}

} // namespace

void ZipOutput::begin(const std::string& name, std::int64_t byteCount) {
    entries_.push_back(
        {name, byteCount, out_.position(), static_cast<std::uint32_t>(crc32(0, nullptr, 0))});
    out_.put(localHeader);
    putCommonHeader(out_);
    out_.put(std::uint32_t{0}); // the checksum, once it is known
    out_.put(inExtraField);
    out_.put(inExtraField);
    out_.put(static_cast<std::uint16_t>(name.size()));
    out_.put(std::uint16_t{20});
    out_.write(name);
    out_.put(bigSizes);
    out_.put(std::uint16_t{16});
    out_.put(byteCount);
    out_.put(byteCount);
}

void ZipOutput::write(const void* bytes, std::size_t count) {
    Entry_s& entry = entries_.back();
    entry.checksum = static_cast<std::uint32_t>(
        crc32_z(entry.checksum, static_cast<const Bytef*>(bytes), count));
    out_.write(bytes, count);
}

void ZipOutput::end() {
    const Entry_s& entry = entries_.back();
    out_.patch(entry.position + checksumPlace, &entry.checksum, sizeof entry.checksum);
}

void ZipOutput::finish() {
    const std::int64_t directory = out_.position();
    for (const Entry_s& entry : entries_)
        putDirectoryEntry(entry);
    putDirectoryEnd(directory);
}

void ZipOutput::putDirectoryEntry(const Entry_s& entry) {
    out_.put(directoryHeader);
    out_.put(versionOfBigSizes); // made by
    putCommonHeader(out_);
    out_.put(entry.checksum);
    out_.put(inExtraField);
    out_.put(inExtraField);
    out_.put(static_cast<std::uint16_t>(entry.name.size()));
    out_.put(std::uint16_t{28});
    out_.put(std::uint16_t{0}); // no comment
    out_.put(std::uint16_t{0}); // first disk
    out_.put(std::uint16_t{0});
    out_.put(std::uint32_t{0});
    out_.put(inExtraField); // position
    out_.write(entry.name);
    out_.put(bigSizes);
    out_.put(std::uint16_t{24});
    out_.put(entry.byteCount);
    out_.put(entry.byteCount);
    out_.put(entry.position);
}

void ZipOutput::putDirectoryEnd(std::int64_t directory) {
    const std::int64_t end = out_.position();
    const std::uint64_t count = entries_.size();
    out_.put(bigDirectoryEnd);
    out_.put(std::uint64_t{44}); // what follows of this record
    out_.put(versionOfBigSizes);
    out_.put(versionOfBigSizes);
    out_.put(std::uint32_t{0}); // disks
    out_.put(std::uint32_t{0});
    out_.put(count);
    out_.put(count);
    out_.put(end - directory);
    out_.put(directory);
    out_.put(bigDirectoryLocator);
    out_.put(std::uint32_t{0});
    out_.put(end);
    out_.put(std::uint32_t{1}); // disks
    out_.put(directoryEnd);
    out_.put(std::uint16_t{0});
    out_.put(std::uint16_t{0});
    out_.put(inBigEnd);
    out_.put(inBigEnd);
    out_.put(inExtraField);
    out_.put(inExtraField);
    out_.put(std::uint16_t{0}); // no comment
}

} // namespace plot3d::program

#include "plot3dfile/detection/EncodingSniffer.h"

#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dfile/numbers/FortranRecords.h"

namespace quorvia::quorutildataio {

namespace {

constexpr int sniffedCharacters = 200;

bool isTextCharacter(int character) {
    const bool isPrintable = character >= 32 && character <= 126;
    const bool isWhiteSpace = character >= 9 && character <= 13;
    return isPrintable || isWhiteSpace;
}

// An empty file counts as text.
bool looksLikeText(FileStream& stream) {
    for (int seen = 0; seen < sniffedCharacters; ++seen) {
        const int character = stream.readCharacter();
        if (character < 0)
            return true;
        if (!isTextCharacter(character))
            return false;
    }
    return true;
}

struct MarkerForm_s {
    bool byteSwap;
    std::uint32_t markerSize;
};

// More than one form can tile the same bytes; the first one wins.
constexpr MarkerForm_s markerForms[] = {{false, 4}, {true, 4}, {false, 8}, {true, 8}};

/// Ends at the first form that tiles the file, and at a walk that did not come to its end.
RecordWalk_e findMarkerForm(Plot3DFile_s& file) {
    file.encoding = Plot3DEncoding_FortranUnformatted;
    for (const MarkerForm_s& form : markerForms) {
        file.byteSwap = form.byteSwap;
        file.markerSize = form.markerSize;
        const RecordWalk_e walk = walkFortranRecords(file);
        if (walk != RecordWalk_e::DoesNotTile || file.stream->hadReadError())
            return walk;
    }
    return RecordWalk_e::DoesNotTile;
}

void settleForPlainBinary(Plot3DFile_s& file) {
    file.encoding = Plot3DEncoding_Binary;
    file.byteSwap = false;
    file.markerSize = 4;
    file.segmentBoundaries.clear();
}

} // namespace

void sniffEncoding(Plot3DFile_s& file) {
    rewindPlot3DFile(file);
    bool isInterrupted = false;
    if (looksLikeText(*file.stream)) {
        file.encoding = Plot3DEncoding_Ascii;
    } else {
        const RecordWalk_e walk = findMarkerForm(file);
        isInterrupted = walk == RecordWalk_e::Interrupted;
        if (walk == RecordWalk_e::DoesNotTile)
            settleForPlainBinary(file);
    }
    if (isInterrupted || file.stream->hadReadError())
        file.encoding = Plot3DEncoding_Unknown;
}

} // namespace quorvia::quorutildataio

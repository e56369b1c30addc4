#include "convert/vtk/AppendedFile.h"

#include <string_view>

#include "console/JsonText.h"

namespace plot3d::program {

namespace {

std::string fromLatin1(std::string_view text) {
    std::string utf8;
    for (const char letter : text) {
        const auto code = static_cast<unsigned char>(letter);
        if (code < 0x80) {
            utf8 += letter;
            continue;
        }
        utf8 += static_cast<char>(0xc0U | (code >> 6U));
        utf8 += static_cast<char>(0x80U | (code & 0x3fU));
    }
    return utf8;
}

class Text {
public:
    explicit Text(const AppendedFile_s& file) : file_(file) {}

    std::string make() {
        text_ = "<?xml version=\"1.0\"?>\n<VTKFile type=\"" + file_.dataSetType +
                "\" version=\"1.0\" byte_order=\"LittleEndian\" header_type=\"UInt64\">\n  <" +
                file_.dataSetType + file_.dataSetAttributes + ">\n";
        if (!file_.fieldData.empty())
            append({"FieldData", file_.fieldData}, "    ", " NumberOfTuples=\"1\"");
        text_ += "    <Piece" + file_.pieceAttributes + ">\n";
        for (const ArrayGroup_s& group : file_.groups)
            append(group, "      ", "");
        text_ +=
            "    </Piece>\n  </" + file_.dataSetType + ">\n  <AppendedData encoding=\"raw\">\n_";
        return text_;
    }

private:
    void append(const ArrayGroup_s& group, const std::string& indent, const char* attributes) {
        text_ += indent + "<" + group.element + ">\n";
        for (const AppendedArray_s& array : group.arrays) {
            text_ += indent + "  <DataArray type=\"" + array.type + "\" Name=\"" +
                     xmlText(array.name) + "\"" + attributes + " NumberOfComponents=\"" +
                     std::to_string(array.components) + "\" format=\"appended\" offset=\"" +
                     std::to_string(offset_) + "\"/>\n";
            offset_ += static_cast<std::int64_t>(sizeof(std::uint64_t)) + array.byteCount;
        }
        text_ += indent + "</" + group.element + ">\n";
    }

    const AppendedFile_s& file_;
    std::string text_;
    std::int64_t offset_ = 0; // of the next array, behind the underscore
};

void writeArrays(const std::vector<AppendedArray_s>& arrays, ByteOutput& out) {
    for (const AppendedArray_s& array : arrays) {
        out.put(array.byteCount);
        array.write(out);
    }
}

} // namespace

std::string xmlText(const std::string& text) {
    std::string escaped;
    for (const char letter : console::isUtf8(text) ? text : fromLatin1(text)) {
        if (letter == '&')
            escaped += "&amp;";
        else if (letter == '<')
            escaped += "&lt;";
        else if (letter == '>')
            escaped += "&gt;";
        else if (letter == '"')
            escaped += "&quot;";
        else // XML has no place for control characters
            escaped += static_cast<unsigned char>(letter) < ' ' ? '_' : letter;
    }
    return escaped;
}

void writeAppendedFile(const AppendedFile_s& file, ByteOutput& out) {
    out.write(Text(file).make());
    writeArrays(file.fieldData, out);
    for (const ArrayGroup_s& group : file.groups)
        writeArrays(group.arrays, out);
    out.write("\n  </AppendedData>\n</VTKFile>\n");
}

} // namespace plot3d::program

// All that is found out of one file, for those who make something of it.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <plot3d/FileInfo.h>

#include "inspect/reading/Account.h"
#include "inspect/reading/ExaminedFile.h"
#include "inspect/reading/Reading.h"
#include "inspect/reading/Search.h"
#include "inspect/reading/TextScan.h"

namespace plot3dlib {

struct Evidence_s {
    explicit Evidence_s(ExaminedFile& examined) : file(examined) {}

    ExaminedFile& file;
    /// By its name, or by who asks; empty: by its bytes alone.
    std::optional<plot3d::FileKind> expectedKind;
    io::Plot3DRecordForm_s form;
    std::optional<Reading_s> loaded;  // what a load takes it for
    std::optional<Reading_s> reading; // what it is; the same unless another one accounts for it all
    std::optional<Account_s> account; // by `reading`
    bool isGuessed = false;           // nothing fits; `reading` comes near
    std::unique_ptr<TextScan> text;   // of a text file
};

/// Where a command wants the name of a grid file that a look into one file can't know.
inline constexpr const char* gridToName = "GRID";

/// "plot3d stats --grid FILE", as a beginning of what to type next; of a solution or function file
/// "plot3d stats --grid GRID --solution FILE", since none is read without a grid.
std::vector<std::string> loadCommand(plot3d::FileKind kind, const std::string& file);
std::vector<std::string> loadCommand(const Evidence_s& evidence);
/// The same with the reading described by hand.
std::vector<std::string> describedLoadCommand(const Evidence_s& evidence);
std::vector<std::string> whyCommand(const Evidence_s& evidence);

} // namespace plot3dlib

#include "convert/plot3d/NumberOutput.h"

#include "convert/plot3d/BinaryOutput.h"
#include "convert/plot3d/TextOutput.h"

namespace plot3d::program {

std::unique_ptr<NumberOutput> makeNumberOutput(ByteOutput& out, const FileForm_s& form,
                                               int tokensPerLine) {
    switch (form.encoding) {
    case Encoding::Text:
        return std::make_unique<TextOutput>(out, tokensPerLine);
    case Encoding::Binary:
        return std::make_unique<BinaryOutput>(out, form.order);
    case Encoding::Fortran:
        return std::make_unique<FortranOutput>(out, form);
    }
    return nullptr;
}

} // namespace plot3d::program

#include "plot3dwriter/NumberSink.h"

#include "plot3dwriter/BinaryNumbers.h"
#include "plot3dwriter/TextNumbers.h"

namespace quorvia::plot3dwriter {

std::unique_ptr<NumberSink> makeNumberSink(ByteSink& sink, const FileForm_s& form) {
    switch (form.encoding) {
    case Encoding_e::Text:
        return std::make_unique<TextNumbers>(sink, form);
    case Encoding_e::Binary:
        return std::make_unique<BinaryNumbers>(sink, form);
    case Encoding_e::Fortran:
        return std::make_unique<FortranNumbers>(sink, form);
    }
    throw WriteFault("no such encoding");
}

} // namespace quorvia::plot3dwriter

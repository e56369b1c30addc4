#include "convert/plot3d/TextOutput.h"

#include <cmath>
#include <utility>

#include <plot3d/Error.h>

#include "convert/output/RealText.h"

namespace plot3d::program {

namespace {

bool isFinite(ValueType type, const void* values, std::size_t index) {
    switch (type) {
    case ValueType::Float32:
        return std::isfinite(static_cast<const float*>(values)[index]);
    case ValueType::Float64:
        return std::isfinite(static_cast<const double*>(values)[index]);
    case ValueType::Int32:
        return true;
    }
    return true;
}

[[noreturn]] void refuseNotFinite() {
    ErrorFacts facts;
    facts.next = "--encoding binary";
    throw Error(ErrorKind::Unsupported,
                "a value is infinite or no number, which has no form in text", std::move(facts));
}

} // namespace

void TextOutput::put(ValueType type, void* values, std::int64_t count) {
    text_.clear();
    for (std::size_t index = 0; index < static_cast<std::size_t>(count); ++index) {
        if (!isFinite(type, values, index))
            refuseNotFinite();
        beginToken();
        const std::size_t start = text_.size();
        appendNumber(text_, type, values, index);
        if (type != ValueType::Int32 && text_.find_first_of(".e", start) == std::string::npos)
            text_ += '.';
    }
    out_.write(text_);
}

void TextOutput::beginToken() {
    if (run_ == Run_e::Block && tokensOnLine_ == tokensPerLine_) {
        text_ += '\n';
        tokensOnLine_ = 0;
    }
    if (tokensOnLine_ > 0)
        text_ += ' ';
    ++tokensOnLine_;
}

void TextOutput::endRun() {
    if (tokensOnLine_ > 0)
        out_.write("\n");
    tokensOnLine_ = 0;
}

} // namespace plot3d::program

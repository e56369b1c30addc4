// Numbers as text: tokens between blanks, each with as many digits as give the same value back.
#pragma once

#include <string>

#include "convert/plot3d/NumberOutput.h"

namespace plot3d::program {

/// Each run begins on a line of its own and ends it. A real always has a point or an exponent,
/// since readers take a token without either for an integer of 32 bits.
class TextOutput final : public NumberOutput {
public:
    /// `tokensPerLine`: in blocks.
    TextOutput(ByteOutput& out, int tokensPerLine) : out_(out), tokensPerLine_(tokensPerLine) {}

    void beginRecord(std::int64_t) override {}
    void endRecord() override {}
    void beginRun(Run_e run) override { run_ = run; }
    void endRun() override;
    void put(ValueType type, void* values, std::int64_t count) override;

private:
    void beginToken();

    ByteOutput& out_;
    int tokensPerLine_;
    Run_e run_ = Run_e::OneLine;
    int tokensOnLine_ = 0;
    std::string text_; // of the values that are being put
};

} // namespace plot3d::program

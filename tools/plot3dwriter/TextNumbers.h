// Numbers as text: tokens, separators, repeat counts and line ends.
#pragma once

#include <string>
#include <string_view>

#include "plot3dwriter/NumberSink.h"

namespace quorvia::plot3dwriter {

/// The token of a real as the options ask for it. It always holds a point or an exponent: readers
/// take a token without either as a 32-bit integer. Never longer than 40 characters. Throws
/// WriteFault if `value` isn't finite, which has no form in text.
std::string realToken(double value, Precision_e precision, const TextOptions_s& options);

/// A run starts on the line where the last one ended, which is a new one: each run ends its line.
/// Repeat counts gather equal tokens inside one block, never across its end.
class TextNumbers final : public NumberSink {
public:
    TextNumbers(ByteSink& sink, const FileForm_s& form) : sink_(sink), form_(form) {}

    void beginRecord(std::int64_t) override {}
    void endRecord() override {}
    void beginRun(Run_e run) override;
    void endRun() override;
    void putInteger(std::int32_t value) override;
    void putReal(double value) override;
    void putHole(std::int64_t) override { throw WriteFault("text has no holes"); }

private:
    void putToken(std::string token);
    void flushRepeated();
    void writeToken(std::string_view token);
    void endLine();

    ByteSink& sink_;
    const FileForm_s form_;
    Run_e run_ = Run_e::OneLine;
    std::int32_t tokensOnLine_ = 0;
    std::string repeated_; ///< the token that is being counted; empty if none
    std::int32_t repeats_ = 0;
};

} // namespace quorvia::plot3dwriter

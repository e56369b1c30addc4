// The rest of the utility library: held-back notifications, the owning string list, file names, the
// exception of an interrupted operation.
#include "quorvia/QuorUtilityLibrary.h"

#include <cstddef>
#include <new>

#include "services/Call.h"

namespace quorvia {

namespace {

constexpr char32_t replacement = 0xFFFD;

struct Decoded_s {
    char32_t character = replacement;
    std::size_t length = 1; // bytes used up
};

unsigned byteAt(const std::string& text, std::size_t position) {
    return static_cast<unsigned char>(text[position]);
}

// Bytes in the sequence that `lead` begins; 0 if it begins none.
std::size_t sequenceLength(unsigned lead) {
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 3;
    if (lead >= 0xF0 && lead <= 0xF4)
        return 4;
    return 0;
}

bool isCharacter(char32_t code, std::size_t length) {
    constexpr char32_t lowest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return code >= lowest[length] && code <= 0x10FFFF && !isSurrogate;
}

// One character; a byte that belongs to none is replaced alone, so that the rest is still read.
Decoded_s decode(const std::string& text, std::size_t position) {
    const unsigned lead = byteAt(text, position);
    const std::size_t length = sequenceLength(lead);
    if (length == 0 || length > text.size() - position)
        return {};
    if (length == 1)
        return {lead, 1};
    char32_t code = lead & (0x7FU >> length);
    for (std::size_t index = 1; index < length; ++index) {
        const unsigned next = byteAt(text, position + index);
        if ((next & 0xC0U) != 0x80U)
            return {};
        code = (code << 6) | (next & 0x3FU);
    }
    return isCharacter(code, length) ? Decoded_s{code, length} : Decoded_s{};
}

} // namespace

SolutionTimeNotificationDeferrer::SolutionTimeNotificationDeferrer() {
    host::Call call("SolutionTimeNotificationDeferrer");
    ++call.host().timeDeferrers;
}

SolutionTimeNotificationDeferrer::~SolutionTimeNotificationDeferrer() {
    host::Call call("~SolutionTimeNotificationDeferrer");
    --call.host().timeDeferrers;
    call.host().tellSolutionTimes();
}

StringList::StringList() : list_(QuorUtilStringListAlloc()) {
    if (list_ == nullptr)
        throw std::bad_alloc();
}

StringList::~StringList() {
    QuorUtilStringListDealloc(&list_);
}

void StringList::append(const std::string& text) {
    if (!QuorUtilStringListAppendString(list_, text.c_str()))
        throw std::bad_alloc();
}

std::wstring utf8ToWideString(const std::string& utf8) {
    const host::Call call("utf8ToWideString", utf8);
    std::wstring wide;
    for (std::size_t position = 0; position < utf8.size();) {
        const Decoded_s decoded = decode(utf8, position);
        wide += static_cast<wchar_t>(decoded.character);
        position += decoded.length;
    }
    return wide;
}

InterruptedException::~InterruptedException() = default;

const char* InterruptedException::what() const noexcept {
    return "The operation was interrupted.";
}

} // namespace quorvia

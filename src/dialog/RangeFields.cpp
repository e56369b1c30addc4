#include "dialog/RangeFields.h"

#include <cstdint>
#include <limits>

#include "dialog/DialogControls.h"
#include "instructions/TurnedRange.h"
#include "state/AddOnIdentity.h"

namespace quorvia::quorutildataio {

namespace {

/// What tells one field from another.
struct RangeField_s {
    std::int32_t& control;
    const char* name;      // as the toolkit's message calls the field
    const char* rangeName; // as our own calls the range; null for a skip, which no end can precede
    Plot3DIndexRange_s Plot3DLoadOptions_s::*range;
    std::int32_t Plot3DIndexRange_s::*member;
    bool startsLock = true;
};

constexpr auto iRange = &Plot3DLoadOptions_s::iRange;
constexpr auto jRange = &Plot3DLoadOptions_s::jRange;
constexpr auto kRange = &Plot3DLoadOptions_s::kRange;
constexpr auto start = &Plot3DIndexRange_s::start;
constexpr auto end = &Plot3DIndexRange_s::end;
constexpr auto skip = &Plot3DIndexRange_s::skip;

constexpr RangeField_s iStart = {iStartField, "I-Start", "I-Range", iRange, start};
constexpr RangeField_s iEnd = {iEndField, "I-End", "I-Range", iRange, end};
constexpr RangeField_s iSkip = {iSkipField, "I-Skip", nullptr, iRange, skip};
constexpr RangeField_s jStart = {jStartField, "J-Start", "J-Range", jRange, start};
constexpr RangeField_s jEnd = {jEndField, "J-End", "J-Range", jRange, end};
constexpr RangeField_s jSkip = {jSkipField, "J-Skip", nullptr, jRange, skip};
constexpr RangeField_s kStart = {kStartField, "K-Start", "K-Range", kRange, start};
// Alone among the fields this one finishes a lock that it did not start, and is to stay so.
constexpr RangeField_s kEnd = {kEndField, "K-End", "K-Range", kRange, end, false};
constexpr RangeField_s kSkip = {kSkipField, "K-Skip", nullptr, kRange, skip};

class LockOfField {
public:
    explicit LockOfField(const RangeField_s& field) {
        if (field.startsLock)
            QuorUtilLockStart(addOnID);
    }
    ~LockOfField() { QuorUtilLockFinish(addOnID); }
    LockOfField(const LockOfField&) = delete;
    LockOfField& operator=(const LockOfField&) = delete;
};

bool readIndex(const RangeField_s& field, std::int64_t& value) {
    constexpr std::int64_t largestIndex = std::numeric_limits<std::int32_t>::max();
    constexpr bool zeroIsLast = false;
    return QuorGUITextFieldValidateLgIndex(field.control, field.name, 1, largestIndex,
                                           zeroIsLast) &&
           QuorGUITextFieldGetLgIndex(field.control, &value);
}

/// False: the value does not stand, and the user was told.
bool storeIndex(const RangeField_s& field) {
    std::int64_t value = 0;
    if (!readIndex(field, value))
        return false;
    Plot3DIndexRange_s& range = gLoadOptions.*field.range;
    // Before the comparison: a user who moves both ends of a range passes through one that is
    // turned round, and goes on from there. A load of it is refused.
    range.*field.member = static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
    if (field.rangeName == nullptr || !isTurnedRound(range))
        return true;
    tellRangeIsTurnedRound(field.rangeName);
    return false;
}

void showIndex(const RangeField_s& field, bool zeroIsLast) {
    QuorGUITextFieldSetLgIndex(field.control, gLoadOptions.*field.range.*field.member, zeroIsLast);
}

template <const RangeField_s& field>
bool indexTyped(const char*) {
    constexpr bool zeroIsLast = false;
    const LockOfField lock(field);
    const bool stands = storeIndex(field);
    if (!stands)
        showIndex(field, zeroIsLast);
    return stands;
}

} // namespace

void buildRangeFields(PageBuilder& page) {
    iStartField = page.textField(1441, 380, 1235, 144, indexTyped<iStart>);
    iEndField = page.textField(4050, 380, 1235, 144, indexTyped<iEnd>);
    iSkipField = page.textField(6605, 380, 1235, 144, indexTyped<iSkip>);
    jStartField = page.textField(1510, 882, 1235, 144, indexTyped<jStart>);
    jEndField = page.textField(4105, 882, 1235, 144, indexTyped<jEnd>);
    jSkipField = page.textField(6673, 882, 1235, 144, indexTyped<jSkip>);
    kStartField = page.textField(1483, 1343, 1235, 144, indexTyped<kStart>);
    kEndField = page.textField(4078, 1343, 1235, 144, indexTyped<kEnd>);
    kSkipField = page.textField(6632, 1343, 1235, 144, indexTyped<kSkip>);
}

void refreshRangeFields(const Plot3DLoadOptions_s& options) {
    for (const RangeField_s* field :
         {&iStart, &iEnd, &iSkip, &jStart, &jEnd, &jSkip, &kStart, &kEnd, &kSkip}) {
        const bool zeroIsLast = field->member == end;
        QuorGUITextFieldSetLgIndex(field->control, options.*field->range.*field->member,
                                   zeroIsLast);
    }
}

} // namespace quorvia::quorutildataio

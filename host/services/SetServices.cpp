// Sets of numbers.
#include "services/Call.h"

using namespace quorvia::host;

namespace {

constexpr std::int64_t largestMember = 2147483647;
/// About half a gigabyte. A slip such as 1-2000000000 would fill the memory.
constexpr std::size_t mostMembers = 10'000'000;

bool addMember(Call& call, QuorSetHandle set, std::int64_t member) {
    GuestSet_s* found = call.object(set);
    if (found == nullptr)
        return false;
    // No breach of the contract: numbers out of a file or from a user may come here.
    if (member < 1 || member > largestMember)
        return call.refuse(member, " can't be a member of a set");
    if (found->members.size() >= mostMembers)
        return call.refuse("a set has no more than ", mostMembers, " members");
    found->members.insert(found->members.end(), member); // most guests add in ascending order
    return true;
}

} // namespace

extern "C" {

QuorSetHandle QuorUtilSetAlloc(bool showErrors) {
    Call call("QuorUtilSetAlloc", showErrors);
    return call.serve(QuorSetHandle{}, [&] {
        return call.host().handles.of(QuorSetHandle{}).add(call.operation(), {});
    });
}

void QuorUtilSetDealloc(QuorSetHandle* set) {
    Call call("QuorUtilSetDealloc", set != nullptr ? *set : nullptr);
    call.giveBack(set);
}

bool QuorUtilSetAddMember(QuorSetHandle set, std::int64_t member, bool showErrors) {
    Call call("QuorUtilSetAddMember", set, member, showErrors);
    return call.serve([&] { return addMember(call, set, member); });
}

void QuorUtilSetRemoveMember(QuorSetHandle set, std::int64_t member) {
    Call call("QuorUtilSetRemoveMember", set, member);
    if (GuestSet_s* found = call.object(set))
        found->members.erase(member);
}

bool QuorUtilSetIsMember(QuorSetHandle set, std::int64_t member) {
    Call call("QuorUtilSetIsMember", set, member);
    const GuestSet_s* found = set != nullptr ? call.object(set) : nullptr;
    return call.result(found != nullptr && found->members.count(member) != 0);
}

bool QuorUtilSetIsEmpty(QuorSetHandle set) {
    Call call("QuorUtilSetIsEmpty", set);
    const GuestSet_s* found = set != nullptr ? call.object(set) : nullptr;
    return call.result(found == nullptr || found->members.empty());
}

std::int64_t QuorUtilSetGetMemberCount(QuorSetHandle set) {
    Call call("QuorUtilSetGetMemberCount", set);
    const GuestSet_s* found = call.object(set);
    return call.result(found != nullptr ? static_cast<std::int64_t>(found->members.size()) : 0);
}

std::int64_t QuorUtilSetGetNextMember(QuorSetHandle set, std::int64_t previous) {
    Call call("QuorUtilSetGetNextMember", set, previous);
    const GuestSet_s* found = call.object(set);
    if (found == nullptr)
        return call.result(std::int64_t{0});
    const auto next = found->members.upper_bound(previous);
    return call.result(next != found->members.end() ? *next : 0);
}

} // extern "C"

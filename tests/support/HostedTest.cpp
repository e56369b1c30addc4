#include "support/HostedTest.h"

#include <algorithm>
#include <stdexcept>

namespace quorvia::testsupport {

namespace {

template <typename Number>
std::vector<Number> numbersOf(const host::FetchResult_s& fetched) {
    const auto* const values = static_cast<const Number*>(fetched.values);
    return {values, values + fetched.count};
}

template <typename Number>
Numbers widened(const host::FetchResult_s& fetched) {
    const std::vector<Number> numbers = numbersOf<Number>(fetched);
    return {numbers.begin(), numbers.end()};
}

std::string placeOf(std::int32_t zone, std::int32_t variable) {
    return "zone " + std::to_string(zone) + ", variable " + std::to_string(variable);
}

host::FetchResult_s fetchOrThrow(std::int32_t zone, std::int32_t variable) {
    host::FetchResult_s fetched = host::ReferenceHost::instance().fetch(zone, variable);
    if (!fetched.ok)
        throw std::runtime_error(placeOf(zone, variable) + ": " + fetched.error);
    return fetched;
}

/// What `tell` tells of each zone of the frame.
template <typename Tell>
auto ofEachZone(const host::DataSet* dataSet, Tell tell) {
    std::vector<std::decay_t<decltype(tell(*dataSet->zones().front()))>> all;
    if (dataSet != nullptr)
        for (const auto& zone : dataSet->zones())
            all.push_back(tell(*zone));
    return all;
}

} // namespace

HostedTest::HostedTest(LeakCheck_e leakCheck) : leakCheck_(leakCheck) {
    host().reset();
}

HostedTest::~HostedTest() {
    if (leakCheck_ == LeakCheck_e::AtEnd)
        host().checkForLeaks();
    EXPECT_EQ(host().log().violations, expectedViolations_);
    host().reset();
}

Texts HostedTest::messages() {
    Texts texts;
    for (const host::Message_s& message : host().log().messages)
        texts.push_back(message.text);
    return texts;
}

bool HostedTest::showedProgress(const std::string& text) {
    const Texts shown = progress();
    return std::find(shown.begin(), shown.end(), text) != shown.end();
}

host::DataSet& HostedTest::dataSet() {
    host::DataSet* const found = host().frame().dataSet();
    if (found == nullptr)
        throw std::runtime_error("the frame has no data set");
    return *found;
}

host::Zone_s& HostedTest::zone(std::int32_t number) {
    host::Zone_s* const found = dataSet().zone(number);
    if (found == nullptr)
        throw std::runtime_error("there is no zone " + std::to_string(number));
    return *found;
}

const host::Field_s& HostedTest::field(std::int32_t zone, std::int32_t variable) {
    const host::Field_s* const found = dataSet().field(zone, variable);
    if (found == nullptr)
        throw std::runtime_error("there is no " + placeOf(zone, variable));
    return *found;
}

std::int32_t HostedTest::zoneCount() {
    const host::DataSet* const found = host().frame().dataSet();
    return found != nullptr ? found->zoneCount() : 0;
}

Texts HostedTest::zoneNames() {
    return ofEachZone(host().frame().dataSet(), [](const host::Zone_s& zone) { return zone.name; });
}

Texts HostedTest::variableNames() {
    Texts names;
    if (const host::DataSet* const found = host().frame().dataSet())
        for (const host::Variable_s& variable : found->variables())
            names.push_back(variable.name);
    return names;
}

std::vector<std::int32_t> HostedTest::strands() {
    return ofEachZone(host().frame().dataSet(),
                      [](const host::Zone_s& zone) { return zone.strandId; });
}

Numbers HostedTest::solutionTimes() {
    return ofEachZone(host().frame().dataSet(),
                      [](const host::Zone_s& zone) { return zone.solutionTime; });
}

std::int32_t HostedTest::fieldType(std::int32_t zone, std::int32_t variable) {
    return field(zone, variable).type;
}

host::FieldState_e HostedTest::state(std::int32_t zone, std::int32_t variable) {
    return field(zone, variable).state();
}

std::int32_t HostedTest::holder(std::int32_t zone, std::int32_t variable) {
    return dataSet().fieldHolders(variable).at(static_cast<std::size_t>(zone - 1));
}

Numbers HostedTest::values(std::int32_t zone, std::int32_t variable) {
    const host::FetchResult_s fetched = fetchOrThrow(zone, variable);
    switch (fetched.type) {
    case QuorFieldDataType_Float:
        return widened<float>(fetched);
    case QuorFieldDataType_Double:
        return widened<double>(fetched);
    case QuorFieldDataType_Int32:
        return widened<std::int32_t>(fetched);
    default:
        throw std::runtime_error("a field of unknown type " + std::to_string(fetched.type));
    }
}

std::vector<std::int32_t> HostedTest::integers(std::int32_t zone, std::int32_t variable) {
    const host::FetchResult_s fetched = fetchOrThrow(zone, variable);
    if (fetched.type != QuorFieldDataType_Int32)
        throw std::runtime_error("the field holds no integers");
    return numbersOf<std::int32_t>(fetched);
}

void HostedTest::makeDataSet(const Texts& variables, const char* loader, const char* title) {
    const HostStringList names = listOf(variables);
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "LoaderName", loader);
    QuorUtilArgListAppendString(arguments.get(), "DataSetTitle", title);
    QuorUtilArgListAppendStringList(arguments.get(), "VarNames", names.get());
    ASSERT_TRUE(QuorUtilDataSetCreateX(arguments.get()));
}

void HostedTest::makeZone(std::int64_t i, std::int64_t j, std::int64_t k,
                          const std::vector<std::int32_t>& fieldTypes, std::int32_t zoneType) {
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "Name", "old");
    QuorUtilArgListAppendInt(arguments.get(), "ZoneType", zoneType);
    QuorUtilArgListAppendInt(arguments.get(), "IMax", i);
    QuorUtilArgListAppendInt(arguments.get(), "JMax", j);
    QuorUtilArgListAppendInt(arguments.get(), "KMax", k);
    if (!fieldTypes.empty())
        QuorUtilArgListAppendArray(arguments.get(), "VarDataType", fieldTypes.data());
    ASSERT_TRUE(QuorUtilDataSetAddZoneX(arguments.get()));
}

HostStringList HostedTest::listOf(const Texts& texts) {
    HostStringList list(QuorUtilStringListAlloc());
    for (const std::string& text : texts)
        QuorUtilStringListAppendString(list.get(), text.c_str());
    return list;
}

Texts HostedTest::textsOf(const HostStringList& list) {
    Texts texts;
    for (std::int64_t index = 1; index <= QuorUtilStringListGetCount(list.get()); ++index)
        texts.push_back(HostString(QuorUtilStringListGetString(list.get(), index)).str());
    return texts;
}

HostSet HostedTest::setOf(const Members& members) {
    HostSet set(QuorUtilSetAlloc(true));
    for (const std::int64_t member : members)
        QuorUtilSetAddMember(set.get(), member, true);
    return set;
}

Members HostedTest::membersOf(QuorSetHandle set) {
    Members members;
    for (std::int64_t member = QuorUtilSetGetNextMember(set, 0); member != 0;
         member = QuorUtilSetGetNextMember(set, member))
        members.push_back(member);
    return members;
}

} // namespace quorvia::testsupport

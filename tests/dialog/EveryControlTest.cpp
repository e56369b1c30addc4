// What holds of every toggle, radio box and menu, those to come included.
#include "dialog/DialogOkFixture.h"

namespace quorvia::quorutildataio {
namespace {

class EveryControl : public DialogOk {
protected:
    static bool isToggle(const Control_s& control) { return control.kind == ControlKind_e::Toggle; }
    static bool hasValue(const Control_s& control) {
        return isToggle(control) || control.kind == ControlKind_e::RadioBox ||
               control.kind == ControlKind_e::OptionMenu;
    }
    /// The other value of a toggle; another item of the rest.
    static std::int32_t otherValue(const Control_s& control) {
        if (isToggle(control))
            return 1 - control.value;
        return control.value == 1 ? 2 : 1;
    }
    static std::string nameOf(const Control_s& control) {
        return control.items.empty() ? control.caption : control.items.front();
    }
    static void refreshAllPages() {
        const HostLock lock(addOnID);
        for (const std::int32_t page : {fileSelectionPage, fileStructurePage, dataSubsetPage})
            refreshDialogPage(page, gLoadOptions);
    }
    static std::size_t controlCount() { return dialog().controls.size(); }
};

// The callback stores, the refresh shows: without either the page tells something else than is
// loaded.
TEST_F(EveryControl, ShowsWhatWasChosenWhenItsPageIsRefreshed) {
    makeDataSet(); // without one nothing can be appended to
    for (std::size_t place = 0; place < controlCount(); ++place) {
        refreshAllPages();
        const Control_s before = dialog().controls[place];
        if (!hasValue(before))
            continue;
        const std::int32_t chosen = otherValue(before);
        std::get<QuorGUIValueCallback>(before.callback)(&chosen);
        refreshAllPages();
        EXPECT_EQ(dialog().controls[place].value, chosen) << nameOf(before);
        setLoadOptionDefaults(gLoadOptions);
        refreshAllPages();
        EXPECT_EQ(dialog().controls[place].value, before.value) << nameOf(before);
    }
}

// OK works some options out by itself, and must not do so with those that the user sets.
TEST_F(EveryControl, StaysAsItWasSetBehindOk) {
    directory_.write("a.x.fvbnd", "FVBND 1 3\nwall\nBOUNDARIES\n1 1 1 1 1 3 1 5 T 1\n");
    for (const bool chosen : {no, yes})
        for (std::size_t place = 0; place < controlCount(); ++place) {
            SetUp();
            retain({grid_});
            gLoadOptions.gridFiles = {grid_}; // what can be used goes by them
            refreshAllPages();
            const Control_s before = dialog().controls[place];
            if (!isToggle(before) || !before.sensitive)
                continue;
            open({show(before.parent), set(before.id, chosen), pressOk()});
            refreshAllPages();
            EXPECT_EQ(dialog().controls[place].value == 1, chosen) << nameOf(before);
        }
}

} // namespace
} // namespace quorvia::quorutildataio

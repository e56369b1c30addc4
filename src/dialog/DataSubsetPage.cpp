#include "dialog/DataSubsetPage.h"

#include "dialog/DialogControls.h"
#include "dialog/PageBuilder.h"
#include "dialog/RangeFields.h"
#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"

namespace quorvia::quorutildataio {

namespace {

bool gridSetTyped(const char*) {
    const HostLock lock(addOnID);
    return QuorGUITextFieldGetSet(gridSetField, &gLoadOptions.gridSet);
}

} // namespace

bool buildDataSubsetPage() {
    if (dataSubsetPage != noControl)
        return true;
    dataSubsetPage = QuorGUITabAddPage(loadTabs, "Data Subset");
    if (dataSubsetPage == noControl)
        return false;
    PageBuilder page(dataSubsetPage);
    page.frame(384, 196, 8857, 403, "I-Index");
    page.frame(384, 1153, 8857, 403, "K-Index");
    page.frame(384, 674, 8857, 403, "J-Index");
    page.frame(384, 1626, 8857, 403, "Grids Loaded (From Each Solution)");
    page.label(631, 392, "Start:");
    page.label(3309, 392, "End:");
    page.label(5836, 392, "Skip:");
    page.label(686, 899, "Start:");
    page.label(3378, 899, "End:");
    page.label(5891, 899, "Skip:");
    page.label(631, 1355, "Start:");
    page.label(3309, 1355, "End:");
    page.label(5836, 1355, "Skip:");
    page.label(590, 1764, "Grid Set:");
    page.label(5355, 1776, "Example:  1-5,7,12");
    buildRangeFields(page);
    gridSetField = page.textField(2046, 1753, 2293, 144, gridSetTyped);
    return page.isWhole();
}

void refreshDataSubsetPage(const Plot3DLoadOptions_s& options) {
    constexpr bool reserved = false;
    refreshRangeFields(options);
    QuorGUITextFieldSetSet(gridSetField, options.gridSet, reserved);
}

} // namespace quorvia::quorutildataio

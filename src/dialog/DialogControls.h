// The identifiers of the load dialog's controls at the host: noControl until the control is made,
// then the same for as long as the library lives. Those of the dialog and of gridAddFiles, which
// the way to the dialog needs too, stand in state/DialogState.h.
#pragma once

#include <cstdint>

#include "state/DialogState.h"

namespace quorvia::quorutildataio {

extern std::int32_t loadTabs;
extern std::int32_t fileSelectionPage;
extern std::int32_t fileStructurePage;
extern std::int32_t dataSubsetPage;

// File Selection
extern std::int32_t nameFileLabel;
extern std::int32_t appendToggle;
extern std::int32_t uniformGridToggle;
extern std::int32_t newStrandPerStepToggle;
extern std::int32_t assignStrandToggle;
extern std::int32_t addToStrandsToggle;
extern std::int32_t gridList;
extern std::int32_t gridRemoveSelected;
extern std::int32_t gridRemoveAll;
extern std::int32_t solutionList;
extern std::int32_t solutionRemoveSelected;
extern std::int32_t solutionRemoveAll;
extern std::int32_t functionList;
extern std::int32_t functionRemoveSelected;
extern std::int32_t functionRemoveAll;
extern std::int32_t nameFileField;
extern std::int32_t nameFileBrowse;

// File Structure
extern std::int32_t dataStructureLabel;
extern std::int32_t styleLabel;
extern std::int32_t fileOrganizationRadio;
extern std::int32_t styleMenu;
extern std::int32_t multiGridToggle;
extern std::int32_t dataStructureRadio;
extern std::int32_t asciiDoubleToggle;
extern std::int32_t asciiIBlankToggle;
extern std::int32_t sameStructureToggle;

// Data Subset
extern std::int32_t iStartField;
extern std::int32_t iEndField;
extern std::int32_t iSkipField;
extern std::int32_t jStartField;
extern std::int32_t jEndField;
extern std::int32_t jSkipField;
extern std::int32_t kStartField;
extern std::int32_t kEndField;
extern std::int32_t kSkipField;
extern std::int32_t gridSetField;

} // namespace quorvia::quorutildataio

#include "dialog/DialogControls.h"

namespace quorvia::quorutildataio {

std::int32_t loadTabs = noControl;
std::int32_t fileSelectionPage = noControl;
std::int32_t fileStructurePage = noControl;
std::int32_t dataSubsetPage = noControl;

// File Selection
std::int32_t nameFileLabel = noControl;
std::int32_t appendToggle = noControl;
std::int32_t uniformGridToggle = noControl;
std::int32_t newStrandPerStepToggle = noControl;
std::int32_t assignStrandToggle = noControl;
std::int32_t addToStrandsToggle = noControl;
std::int32_t gridList = noControl;
std::int32_t gridRemoveSelected = noControl;
std::int32_t gridRemoveAll = noControl;
std::int32_t solutionList = noControl;
std::int32_t solutionRemoveSelected = noControl;
std::int32_t solutionRemoveAll = noControl;
std::int32_t functionList = noControl;
std::int32_t functionRemoveSelected = noControl;
std::int32_t functionRemoveAll = noControl;
std::int32_t nameFileField = noControl;
std::int32_t nameFileBrowse = noControl;

// File Structure
std::int32_t dataStructureLabel = noControl;
std::int32_t styleLabel = noControl;
std::int32_t fileOrganizationRadio = noControl;
std::int32_t styleMenu = noControl;
std::int32_t multiGridToggle = noControl;
std::int32_t dataStructureRadio = noControl;
std::int32_t asciiDoubleToggle = noControl;
std::int32_t asciiIBlankToggle = noControl;
std::int32_t sameStructureToggle = noControl;

// Data Subset
std::int32_t iStartField = noControl;
std::int32_t iEndField = noControl;
std::int32_t iSkipField = noControl;
std::int32_t jStartField = noControl;
std::int32_t jEndField = noControl;
std::int32_t jSkipField = noControl;
std::int32_t kStartField = noControl;
std::int32_t kEndField = noControl;
std::int32_t kSkipField = noControl;
std::int32_t gridSetField = noControl;

} // namespace quorvia::quorutildataio

// The frame.
#include "services/Call.h"

using namespace quorvia::host;

namespace {

bool isPlotType(std::int32_t plotType) {
    return plotType >= QuorPlotType_3D && plotType <= QuorPlotType_Polar;
}

} // namespace

extern "C" {

std::int32_t QuorUtilFrameGetPlotType() {
    Call call("QuorUtilFrameGetPlotType");
    return call.result(call.host().frame().plotType());
}

void QuorUtilFrameSetPlotType(std::int32_t plotType) {
    Call call("QuorUtilFrameSetPlotType", plotType);
    if (isPlotType(plotType))
        call.host().frame().setPlotType(plotType);
    else
        call.violation("there is no plot type ", plotType);
}

std::int64_t QuorUtilFrameGetUniqueID() {
    Call call("QuorUtilFrameGetUniqueID");
    return call.result(call.host().frame().uniqueId());
}

void QuorUtilFrameReset(std::int64_t frameId) {
    Call call("QuorUtilFrameReset", frameId);
    if (Frame* const frame = call.host().frames.find(frameId))
        frame->reset();
    else
        call.violation("there is no frame ", frameId);
}

void QuorUtilRedraw(bool doFullDrawing) {
    Call call("QuorUtilRedraw", doFullDrawing);
    ++call.host().log.redraws;
}

} // extern "C"

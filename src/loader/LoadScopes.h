// What a load must give back on every way out, also when memory runs out half-way.
#pragma once

#include "loader/LoadContext.h"

namespace quorvia::quorutildataio {

/// The progress bar of a load and what lives as long as it is shown: the task of the dataset stage
/// and the parent zones.
class LoadProgressBar {
public:
    /// Opens the bar. `context` is borrowed.
    explicit LoadProgressBar(Plot3DLoadContext_s& context);
    ~LoadProgressBar();
    LoadProgressBar(const LoadProgressBar&) = delete;
    LoadProgressBar& operator=(const LoadProgressBar&) = delete;

private:
    Plot3DLoadContext_s& context;
};

/// The undo state of a load that appends. Ends as failed unless `end` says otherwise.
class LoadUndoState {
public:
    explicit LoadUndoState(Plot3DLoadContext_s& load) : context(load) {}
    ~LoadUndoState() { end(false); }
    LoadUndoState(const LoadUndoState&) = delete;
    LoadUndoState& operator=(const LoadUndoState&) = delete;

    /// Nothing if the load did not begin an undo state, or has ended it.
    void end(bool success);

private:
    Plot3DLoadContext_s& context;
};

} // namespace quorvia::quorutildataio

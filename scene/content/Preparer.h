// From a data set and a view to what is drawn. This is where values are read and where time goes:
// it needs no window and may run on any thread.
#pragma once

#include <memory>

#include <plot3d/DataSet.h>
#include <plot3d/Derived.h>
#include <plot3d/Watch.h>

#include "content/SceneContent.h"
#include "view/View.h"

namespace plot3d::scene {

class Preparer {
public:
    /// The data set is borrowed. `threads`: 0 for as many as there are cores.
    explicit Preparer(const DataSet& data, const Gas& gas = {}, int threads = 0);
    ~Preparer();
    Preparer(const Preparer&) = delete;
    Preparer& operator=(const Preparer&) = delete;

    /// Reads the surfaces and values that are shown and that the content before did not have. One
    /// call at a time; the result may be used on any thread and outlives this. Throws Error: Usage
    /// for a zone, variable or surface that the data set doesn't have, Interrupted, Unreadable.
    /// After an error the next call works as if it had not been.
    std::shared_ptr<const SceneContent_s> prepare(const View_s& view, const Watch& watch = {});

private:
    class Work;
    class Cache;

    bool isGridAlone() const;

    const DataSet& data_;
    Gas gas_;
    int threads_;
    std::unique_ptr<Cache> cache_;
};

} // namespace plot3d::scene

// A frame of the host that a data set keeps, since its fields are known through the host alone.
#pragma once

#include <cstdint>
#include <functional>
#include <stop_token>

#include "model/FieldCache.h"
#include "model/Frame.h"

namespace plot3dlib {

/// An empty frame, which ends when the last owner lets go of it. Fetched values are kept up to a
/// GiB, apart from those of the host's other frames.
class KeptFrame {
public:
    /// The host lock must be held. Throws std::bad_alloc.
    KeptFrame();
    /// Takes the host lock.
    ~KeptFrame();
    KeptFrame(const KeptFrame&) = delete;
    KeptFrame& operator=(const KeptFrame&) = delete;

    /// Null if the host has ended it.
    quorvia::host::Frame* frame() const;

    /// Fetches a field of this frame and calls `use` with its values, I fastest. Throws
    /// plot3d::Error: Unreadable with what the guest said, Interrupted. The host lock must be held.
    void withValues(quorvia::host::FieldStorage& field, const std::function<void(const void*)>& use,
                    const std::stop_token& stop);

private:
    std::int64_t id_;
    quorvia::host::FieldCache cache_;
};

} // namespace plot3dlib

#include "surfaces/Planes.h"

#include <algorithm>
#include <array>

namespace plot3d::scene {

namespace {

class Planes {
public:
    explicit Planes(const Extent& size) : size_(size) {}

    void add(const SurfaceWish_s& wish) {
        if (wish.kind == SurfaceKind_e::Outer)
            return addOuter();
        if (wish.kind == SurfaceKind_e::Boundary)
            return;
        const std::size_t axis =
            static_cast<std::size_t>(wish.kind) - static_cast<std::size_t>(SurfaceKind_e::I);
        for (const std::int64_t index : wish.indices)
            addPlane(axis, index > 0 ? index - 1 : sizes_[axis] + index);
    }

    std::vector<Patch_s> take() { return std::move(patches_); }

private:
    void addOuter() {
        if (std::count(sizes_.begin(), sizes_.end(), std::int64_t{1}) > 0)
            return addBox(Box::whole(size_));
        for (const std::size_t axis : {std::size_t{2}, std::size_t{1}, std::size_t{0}}) {
            addPlane(axis, 0);
            addPlane(axis, sizes_[axis] - 1);
        }
    }

    void addPlane(std::size_t axis, std::int64_t index) {
        if (index < 0 || index >= sizes_[axis])
            return;
        Box box = Box::whole(size_);
        (axis == 0 ? box.i : axis == 1 ? box.j : box.k) = {index, index, 1};
        addBox(box);
    }

    void addBox(const Box& box) {
        const bool isThere = std::any_of(patches_.begin(), patches_.end(),
                                         [&](const Patch_s& patch) { return patch.box == box; });
        if (!isThere)
            patches_.push_back({box, pointCountOf(patches_)});
    }

    Extent size_;
    std::array<std::int64_t, 3> sizes_ = {size_.i, size_.j, size_.k};
    std::vector<Patch_s> patches_;
};

} // namespace

std::vector<Patch_s> patchesOf(const Extent& size, const std::vector<SurfaceWish_s>& wishes) {
    Planes planes(size);
    for (const SurfaceWish_s& wish : wishes)
        planes.add(wish);
    return planes.take();
}

std::int64_t pointCountOf(const std::vector<Patch_s>& patches) {
    return patches.empty() ? 0 : patches.back().firstPoint + patches.back().box.count();
}

} // namespace plot3d::scene

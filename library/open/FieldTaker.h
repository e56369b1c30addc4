// Takes the fields of a data set out of the host: of each, where its values are.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <unordered_map>

#include "model/DataSet.h"
#include "open/Content.h"
#include "open/ContentOfFrame.h"
#include "open/LinkedAddOn.h"

namespace plot3dlib {

/// Fills the fields of `content`, whose variables and zones are there, and the lists that they are
/// places in. All is borrowed.
class FieldTaker {
public:
    FieldTaker(const quorvia::host::DataSet& data, HostFields_e hostFields, Content_s& content)
        : data_(data), hostFields_(hostFields), content_(content) {}

    /// The fields of a boundary are parts of those of its grid at the same time, also where the
    /// add-on would show others: it gives boundaries on moving grids the coordinates of the first
    /// step, and of several function files the last. Throws plot3d::Error if a field could not be
    /// fetched.
    void takeAll();

private:
    using Storage = quorvia::host::FieldStorage;
    using StoragePtr = std::shared_ptr<Storage>;
    using BoundaryRecord = quorvia::quorutildataio::Plot3DBoundaryClientData_s;

    void takeVariable(std::size_t variable);
    void takeField(std::size_t zone, std::size_t variable, const StoragePtr& storage);
    bool takeFromFile(const Storage& storage, FieldRecord_s& record);
    void takeFromHost(std::size_t zone, const StoragePtr& storage, FieldRecord_s& record);

    void straightenOffsets(std::size_t zone);

    // Of a boundary's zone, once all others are there.
    void takeBoundary(std::size_t zone, const BoundaryRecord& boundary);
    void takePart(std::size_t zone, std::size_t variable, const plot3d::Box& box);
    void takeFetched(std::size_t zone, std::size_t variable);
    bool mayTakePart(std::size_t zone, std::size_t variable) const;
    bool isFieldOfParent(const BoundaryRecord& boundary, std::size_t parent,
                         std::size_t variable) const;
    bool isSameInParents(std::size_t zone, std::size_t other, std::size_t variable) const;

    const StoragePtr& storageOf(std::size_t zone, std::size_t variable) const;
    std::uint32_t placeOf(const quorvia::quorutildataio::Plot3DVariable_s& file);
    void note(std::size_t zone, std::size_t variable, const char* what);

    const quorvia::host::DataSet& data_;
    const HostFields_e hostFields_;
    Content_s& content_;
    std::map<std::size_t, const BoundaryRecord*> boundaries_; // by zone: one of its fields
    std::unordered_map<const void*, std::uint32_t> placesByRecord_;
    std::map<FileForm_s, std::uint32_t> placesByForm_;
};

} // namespace plot3dlib

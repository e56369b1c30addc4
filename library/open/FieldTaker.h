// Takes the fields of a data set out of the host: of each, where its values are.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
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

    /// Throws plot3d::Error if a field could not be fetched.
    void takeAll();

private:
    using Storage = quorvia::host::FieldStorage;
    using LodRecord = quorvia::quorutildataio::Plot3DLodRecord_s;
    using BoundaryRecord = quorvia::quorutildataio::Plot3DBoundaryClientData_s;

    void takeVariable(std::size_t variable);
    void takeField(std::size_t zone, std::size_t variable, const std::shared_ptr<Storage>& storage);
    bool takeFromFile(const Storage& storage, FieldRecord_s& record);
    bool takeFromParent(std::size_t zone, std::size_t variable, const Storage& storage,
                        FieldRecord_s& record);
    void takeFromHost(std::size_t zone, const std::shared_ptr<Storage>& storage,
                      FieldRecord_s& record);
    bool isFieldOfParent(const BoundaryRecord& boundary, std::size_t parent,
                         std::size_t variable) const;
    std::uint32_t placeOf(const quorvia::quorutildataio::Plot3DVariable_s& file);

    const quorvia::host::DataSet& data_;
    const HostFields_e hostFields_;
    Content_s& content_;
    std::unordered_map<const void*, std::uint32_t> placesByRecord_;
    std::map<FileForm_s, std::uint32_t> placesByForm_;
};

} // namespace plot3dlib

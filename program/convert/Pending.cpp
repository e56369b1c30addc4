#include <plot3d/Derived.h>
namespace plot3d {
__attribute__((weak)) const std::vector<DerivedQuantity>& derivedQuantities() {
    static std::vector<DerivedQuantity> n;
    return n;
}
__attribute__((weak)) const DerivedQuantity* findDerivedQuantity(std::string_view) {
    return nullptr;
}
__attribute__((weak)) bool canDerive(const DataSet&, std::size_t, const DerivedQuantity&,
                                     std::string&) {
    return false;
}
__attribute__((weak)) std::vector<std::vector<double>>
derive(const DataSet&, std::size_t, const DerivedQuantity&, const Gas&, std::stop_token) {
    return {};
}
} // namespace plot3d

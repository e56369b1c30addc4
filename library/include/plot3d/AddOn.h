// The add-on inside the library as a guest of the reference host, for programs in which a user
// works at that host. Who only wants data sets needs none of it.
#pragma once

namespace plot3d {

/// Makes the add-on known to the host of this process, where it is a loader from then on, ahead of
/// all others; DataSet::of knows where the fields lie that it brings in. Once done it stays until
/// the program ends, and further calls change nothing. Throws Error.
void registerAddOn();

} // namespace plot3d

#include <iostream>
#include <plot3d/plot3d.h>

int main(int, char** files) try {
    const auto data = plot3d::DataSet::open({files[1], files[2]});
    const std::vector<double> density = data.values(0, data.variable("RHO"));
    std::cout << "density at the first point of " << data.zones()[0].name << ": " << density[0]
              << '\n';
} catch (const plot3d::Error& error) {
    std::cerr << error.what() << '\n';
    return 1;
}

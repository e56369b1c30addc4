#include <iostream>

#include "plot3dsample/Run.h"

int main(int argc, char** argv) {
    return quorvia::plot3dsample::run({argv + 1, argv + argc}, std::cout, std::cerr);
}

#include "app/Program.h"

int main(int argc, char** argv) {
    return plot3d::program::runAtTerminal({argv + 1, argv + argc});
}

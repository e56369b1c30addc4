#include "desktop/Program.h"

int main(int argc, char** argv) {
    return quorvia::host::runDesktop(argc, argv);
}

#include "app/Program.h"

int main(int argc, char** argv) {
    return quorvia::host::run({argv + 1, argv + argc}, quorvia::host::standardConsole());
}

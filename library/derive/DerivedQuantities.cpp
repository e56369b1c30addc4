#include <plot3d/Derived.h>

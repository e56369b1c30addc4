#include <plot3d/FieldReader.h>

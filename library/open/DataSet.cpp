#include <plot3d/DataSet.h>

#include <plot3d/FileInfo.h>

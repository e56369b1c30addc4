// What a plot3d::DataSet holds behind its pointer.
#pragma once

#include <plot3d/DataSet.h>

#include "open/Content.h"

struct plot3d::DataSet::Content : plot3dlib::Content_s {};

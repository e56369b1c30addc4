// All of the library.
#pragma once

#include <plot3d/AddOn.h>
#include <plot3d/Box.h>
#include <plot3d/DataSet.h>
#include <plot3d/Derived.h>
#include <plot3d/Error.h>
#include <plot3d/Field.h>
#include <plot3d/FieldReader.h>
#include <plot3d/FileInfo.h>
#include <plot3d/FileNames.h>
#include <plot3d/Version.h>
#include <plot3d/Watch.h>
#include <plot3d/Zone.h>

/* How this process meets its peer: by the stand-in for MESH. Replace it when you have the closed library. */
#pragma once

#include <platform/standin/mesh_standin.h>

enum { PATIENCE_MS = 5000 };

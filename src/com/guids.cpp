// Defines the GUIDs that the generated headers declare.
#include <initguid.h>

#include "QVRlib21.h"

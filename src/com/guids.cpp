// The identifiers that the generated headers only declare, defined once.
#include <initguid.h>

#include "QVRlib21.h"

// Windows and COM headers in the order that they need, and the reference used throughout the automation edge.
#pragma once

#include <windows.h>

#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>

#include "com/com_ptr.h"

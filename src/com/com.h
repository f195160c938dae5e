// Windows and COM headers in the required order, and ComPtr.
#pragma once

#include <windows.h>

#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>

#include "com/com_ptr.h"

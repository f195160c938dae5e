// Windows and COM headers in the order that they need, and the smart pointer used throughout the automation edge.
#pragma once

#include <windows.h>

#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>
#include <wrl/client.h>

namespace qvr::automation {

using Microsoft::WRL::ComPtr;

}  // namespace qvr::automation

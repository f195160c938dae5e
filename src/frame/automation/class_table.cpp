#include "frame/automation/class_table.h"

#include "QVRlib21.h"
#include "connection/automation/qvrcfp_object.h"
#include "frame/automation/ov_object.h"
#include "script/automation/qvrscr_object.h"

namespace qvr::automation {
namespace {

template <class Object>
IUnknown* create() {
  return static_cast<IDispatch*>(new Object());
}

}  // namespace

std::span<const ClassRow> class_table() {
  static const ClassRow rows[] = {
      {CLSID_QVRcfp, L"QVRcfp", create<QVRcfpObject>},
      {CLSID_Ov, L"Ov", create<OvObject>},
      {CLSID_QVRScr, L"QVRScr", create<QVRScrObject>},
  };
  return rows;
}

}  // namespace qvr::automation

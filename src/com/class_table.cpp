#include "com/class_table.h"

#include "QVRlib21.h"
#include "com/objects/csql20_object.h"
#include "com/objects/ov_object.h"
#include "com/objects/qvrcfp_object.h"
#include "com/objects/qvrprp_object.h"
#include "com/objects/qvrscr_object.h"
#include "com/objects/usql20_object.h"

namespace qvr::com {
namespace {

template <class Object>
HRESULT create(REFIID id, void** found) {
  return (new Object)->hand_over(id, found);  // without "()", which would zero the memory first
}

}  // namespace

std::span<const ClassRow> class_table() {
  static const ClassRow rows[] = {
      {CLSID_QVRcfp, L"QVRcfp", create<QVRcfpObject>}, {CLSID_Ov, L"Ov", create<OvObject>},
      {CLSID_QVRScr, L"QVRScr", create<QVRScrObject>}, {CLSID_cSQL20, L"cSQL20", create<cSQL20Object>},
      {CLSID_uSQL20, L"uSQL20", create<uSQL20Object>}, {CLSID_QVRprp, L"QVRprp", create<QVRprpObject>},
  };
  return rows;
}

}  // namespace qvr::com

#include "com/class_table.h"

#include <algorithm>

#include "QVRlib21.h"
#include "com/objects/csql20_object.h"
#include "com/objects/ov_object.h"
#include "com/objects/qvrcfp_object.h"
#include "com/objects/qvrprp_object.h"
#include "com/objects/qvrscr_object.h"
#include "com/objects/usql20_object.h"
#include "session/ov.h"

namespace qvr::com {
namespace {

template <class Object>
HRESULT create(REFIID id, void** found) {
  return (new Object)->hand_over(id, found);  // without "()", which would zero the memory first
}

}  // namespace

std::span<const ClassRow> class_table() {
  static const ClassRow rows[] = {
      {CLSID_QVRcfp, qvr::QVRcfp::kClass, create<QVRcfpObject>},
      {CLSID_Ov, qvr::Ov::kClass, create<OvObject>},
      {CLSID_QVRScr, qvr::QVRScr::kClass, create<QVRScrObject>},
      {CLSID_cSQL20, qvr::cSQL20::kClass, create<cSQL20Object>},
      {CLSID_uSQL20, qvr::uSQL20::kClass, create<uSQL20Object>},
      {CLSID_QVRprp, qvr::QVRprp::kClass, create<QVRprpObject>},
  };
  return rows;
}

TextView class_name(REFCLSID id) noexcept {
  const auto rows = class_table();
  const auto row = std::ranges::find_if(rows, [&](const ClassRow& candidate) { return candidate.id == id; });
  return row == rows.end() ? TextView() : row->name;
}

}  // namespace qvr::com

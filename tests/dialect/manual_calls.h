// The calls whose texts the manual shows, one table row each: what a page says an engine gets is what the core gives.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/engine.h"

namespace qvr::tests {

struct ManualCall {
  std::string call;  // as the manual writes it, in Visual Basic
  std::function<Text(Engine)> text;
};

struct ManualPage {
  std::string name;
  std::vector<ManualCall> calls;
};

ManualPage query_page();
std::vector<ManualPage> manual_pages();

}  // namespace qvr::tests

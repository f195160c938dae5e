// A list form over a database: list_form FOLDER [PROVIDER OPTIONS]
// FOLDER keeps the connection file, which is made at the first start, and the filters of the user. README.md tells what
// is expected of the database.
#include <exception>

#include "controls.h"
#include "database.h"
#include "filter_file.h"
#include "form.h"
#include "order_list.h"
#include "update_window.h"

namespace {

using namespace list_form;

void show_form(const Access& access) {
  const Database database(access);
  show_update(database);
  OrderList list(database);
  FilterFile filters(access.folder, database.parameters().MotorBD());
  Form(list, filters).run();
}

int told(const std::wstring& text) {
  MessageBoxW(nullptr, text.c_str(), L"List form", MB_OK | MB_ICONWARNING);
  return 1;
}

// COM's own words where the object gave none.
std::wstring description(const qvrlib21::Failure& failure) {
  if (!failure.description().empty()) return failure.description();
  wchar_t text[512] = L"The library or ADO did not answer.";
  FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                 static_cast<DWORD>(failure.code()), 0, text, static_cast<DWORD>(std::size(text)), nullptr);
  return text;
}

int shown(const Access& access) {
  try {
    show_form(access);
    return 0;
  } catch (const Problem& problem) {
    return told(problem.text());
  } catch (const qvrlib21::Failure& failure) {
    return told(description(failure));
  } catch (const std::exception&) {
    return told(L"There is not enough memory.");
  }
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2 && count != 4) return told(L"usage: list_form FOLDER [PROVIDER OPTIONS]");
  Access access{.folder = arguments[1]};
  if (count == 4) access.provider = arguments[2], access.options = arguments[3];
  const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES | ICC_PROGRESS_CLASS | ICC_BAR_CLASSES |
                                                           ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&controls);
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const int outcome = shown(access);
  CoUninitialize();
  return outcome;
}

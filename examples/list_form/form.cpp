#include "form.h"

#include <algorithm>
#include <exception>

namespace list_form {
namespace {

constexpr SIZE kClient{720, 420};
constexpr COLORREF kRefused = RGB(255, 190, 190);
constexpr int kMargin = 8, kRowHeight = 24, kButtonWidth = 100, kFilterWidth = 220;
constexpr int kListTop = 3 * kMargin + 2 * kRowHeight;

enum Id { kFilterBox = 10, kSave, kClear, kRows, kLine, kFirstBox = 100 };

}  // namespace

Form::Form(OrderList& list, FilterFile& filters)
    : list_(list), filters_(filters), refused_brush_(CreateSolidBrush(kRefused)) {
  window_ = make_window(L"list_form", L"Orders", procedure, this, kClient);
  make_controls();
  make_columns();
  lay_out();
  show();
  show_filters();
}

Form::~Form() {
  if (window_ != nullptr) DestroyWindow(window_);
  DeleteObject(refused_brush_);
}

void Form::make_controls() {
  filter_box_ = make_control(window_, WC_COMBOBOXW, L"", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP,
                             kFilterBox);
  save_ = make_control(window_, WC_BUTTONW, L"Save filter", WS_TABSTOP, kSave);
  clear_ = make_control(window_, WC_BUTTONW, L"Clear search", WS_TABSTOP, kClear);
  for (std::size_t i = 0; i < kColumns.size(); ++i) {
    boxes_[i] = make_control(window_, WC_EDITW, L"", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP,
                             kFirstBox + static_cast<int>(i));
  }
  rows_ = make_control(window_, WC_LISTVIEWW, L"",
                       LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP, kRows);
  ListView_SetExtendedListViewStyle(rows_, LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
  line_ = make_control(window_, STATUSCLASSNAMEW, L"", SBARS_SIZEGRIP, kLine);
}

void Form::make_columns() {
  for (std::size_t i = 0; i < kColumns.size(); ++i) {
    std::wstring title = kColumns[i].title;
    LVCOLUMNW column{};
    column.mask = LVCF_FMT | LVCF_TEXT | LVCF_WIDTH;
    column.fmt = kColumns[i].type == L'N' ? LVCFMT_RIGHT : LVCFMT_LEFT;
    column.cx = kColumns[i].width;
    column.pszText = title.data();
    ListView_InsertColumn(rows_, static_cast<int>(i), &column);
  }
}

void Form::run() {
  ShowWindow(window_, SW_SHOWNORMAL);
  SetFocus(boxes_[0]);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    // Tab goes from control to control, Enter comes as the command IDOK.
    if (window_ != nullptr && IsDialogMessageW(window_, &message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

// What a handler throws may not go through the system's code.
LRESULT CALLBACK Form::procedure(HWND window, UINT message, WPARAM word, LPARAM more) {
  if (message == WM_NCCREATE) {
    SetWindowLongPtrW(window, GWLP_USERDATA,
                      reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTW*>(more)->lpCreateParams));
  }
  auto* const form = reinterpret_cast<Form*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (form == nullptr || form->line_ == nullptr) return DefWindowProcW(window, message, word, more);
  try {
    return form->handle(message, word, more);
  } catch (const Problem& problem) {
    form->say(problem.text());
  } catch (const qvrlib21::Failure& failure) {
    form->say(failure.description());
  } catch (const std::exception&) {
    form->say(L"There is not enough memory.");
  }
  return 0;
}

LRESULT Form::handle(UINT message, WPARAM word, LPARAM more) {
  switch (message) {
    case WM_COMMAND: command(LOWORD(word), HIWORD(word)); return 0;
    case WM_NOTIFY: return notified(*reinterpret_cast<NMHDR*>(more));
    case WM_CTLCOLOREDIT: return box_colour(reinterpret_cast<HDC>(word), reinterpret_cast<HWND>(more));
    case WM_SIZE: lay_out(); return 0;
    case WM_DESTROY:
      window_ = nullptr;
      PostQuitMessage(0);
      return 0;
    default: return DefWindowProcW(window_, message, word, more);
  }
}

void Form::command(int id, int code) {
  const std::size_t column = static_cast<std::size_t>(id) - kFirstBox;
  if (id >= kFirstBox && column < kColumns.size()) {
    if (code == EN_CHANGE) set_refused(column, false);
  } else if (id == IDOK) {
    if (focused_box() < kColumns.size()) search(focused_box());
  } else if (id == kFilterBox) {
    if (code == CBN_SELCHANGE) pick_filter();
  } else if (id == kSave) {
    keep_filter();
  } else if (id == kClear) {
    list_.clear();
    show_searches();
    show();
  }
}

LRESULT Form::notified(NMHDR& told) {
  if (told.code == LVN_GETDISPINFOW) {
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(told).item;
    if ((item.mask & LVIF_TEXT) != 0 && item.cchTextMax > 0) {
      const Cells& cells = list_.rows()[static_cast<std::size_t>(item.iItem)];
      lstrcpynW(item.pszText, cells[static_cast<std::size_t>(item.iSubItem)].c_str(), item.cchTextMax);
    }
  } else if (told.code == LVN_COLUMNCLICK) {
    list_.sort(static_cast<std::size_t>(reinterpret_cast<NMLISTVIEW&>(told).iSubItem));
    show();
  } else if (told.code == HDN_ITEMCHANGEDW || told.code == LVN_ENDSCROLL) {
    lay_out_boxes();
  }
  return 0;
}

LRESULT Form::box_colour(HDC canvas, HWND box) {
  const auto found = std::find(boxes_.begin(), boxes_.end(), box);
  const bool refused = found != boxes_.end() && refused_[static_cast<std::size_t>(found - boxes_.begin())];
  SetBkColor(canvas, refused ? kRefused : GetSysColor(COLOR_WINDOW));
  SetTextColor(canvas, GetSysColor(COLOR_WINDOWTEXT));
  return reinterpret_cast<LRESULT>(refused ? refused_brush_ : GetSysColorBrush(COLOR_WINDOW));
}

// A search that is refused leaves the list as it was, and the box in another colour until it is changed.
void Form::search(std::size_t column) {
  const bool accepted = list_.search(column, text_of(boxes_[column]));
  if (accepted) show();
  set_refused(column, !accepted);
}

void Form::set_refused(std::size_t column, bool refused) {
  if (refused_[column] == refused) return;
  refused_[column] = refused;
  InvalidateRect(boxes_[column], nullptr, TRUE);
}

std::size_t Form::focused_box() const {
  return static_cast<std::size_t>(std::find(boxes_.begin(), boxes_.end(), GetFocus()) - boxes_.begin());
}

void Form::pick_filter() {
  const auto picked = static_cast<std::size_t>(SendMessageW(filter_box_, CB_GETCURSEL, 0, 0));
  if (picked >= filters_.filters().size()) return;
  if (!list_.apply(filters_.filters()[picked])) return say(L"This filter cannot be read.");
  show_searches();
  show();
}

void Form::keep_filter() {
  const std::wstring name = text_of(filter_box_);
  if (name.empty()) return say(L"Give the filter a name on the left of the button.");
  filters_.keep(list_.filter(name));
  show_filters();
  SetWindowTextW(filter_box_, name.c_str());
}

void Form::show() {
  ListView_SetItemCountEx(rows_, static_cast<int>(list_.rows().size()), 0);
  InvalidateRect(rows_, nullptr, TRUE);
  show_sorting();
  const std::wstring criterion = list_.criterion();
  say(std::to_wstring(list_.rows().size()) + L" orders" + (criterion.empty() ? L"" : L": " + criterion));
}

void Form::show_filters() {
  SendMessageW(filter_box_, CB_RESETCONTENT, 0, 0);
  for (const Filter& filter : filters_.filters()) {
    SendMessageW(filter_box_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(filter.name.c_str()));
  }
}

void Form::show_searches() {
  for (std::size_t i = 0; i < kColumns.size(); ++i) SetWindowTextW(boxes_[i], list_.searches()[i].c_str());
}

void Form::show_sorting() {
  const HWND header = ListView_GetHeader(rows_);
  const Sorting sorting = list_.sorting();
  for (int i = 0; i < static_cast<int>(kColumns.size()); ++i) {
    HDITEMW item{};
    item.mask = HDI_FORMAT;
    SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
    item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
    if (i == sorting.column) item.fmt |= sorting.descending ? HDF_SORTDOWN : HDF_SORTUP;
    SendMessageW(header, HDM_SETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
  }
}

void Form::say(const std::wstring& text) { SetWindowTextW(line_, text.c_str()); }

void Form::lay_out() {
  SendMessageW(line_, WM_SIZE, 0, 0);  // the line finds its own place
  RECT area, line;
  GetClientRect(window_, &area);
  GetWindowRect(line_, &line);
  MoveWindow(filter_box_, kMargin, kMargin, kFilterWidth, 10 * kRowHeight, TRUE);
  MoveWindow(save_, 2 * kMargin + kFilterWidth, kMargin, kButtonWidth, kRowHeight, TRUE);
  MoveWindow(clear_, area.right - kMargin - kButtonWidth, kMargin, kButtonWidth, kRowHeight, TRUE);
  MoveWindow(rows_, kMargin, kListTop, area.right - 2 * kMargin,
             area.bottom - kListTop - kMargin - (line.bottom - line.top), TRUE);
  lay_out_boxes();
}

// Each above its column, wherever that was moved.
void Form::lay_out_boxes() {
  const HWND header = ListView_GetHeader(rows_);
  for (std::size_t i = 0; i < kColumns.size(); ++i) {
    RECT place;
    Header_GetItemRect(header, static_cast<int>(i), &place);
    MapWindowPoints(header, window_, reinterpret_cast<POINT*>(&place), 2);
    MoveWindow(boxes_[i], place.left, kListTop - kRowHeight, place.right - place.left - 2, kRowHeight - 2, TRUE);
  }
}

}  // namespace list_form
